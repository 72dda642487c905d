// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "palettes/AccessiblePaletteList.h"

#include "palettes/ListActions.h"
#include "palettes/PaletteHeaderWidget.h"
#include "palettes/PaletteList.h"

#include <QAccessible>
#include <QAccessibleWidget>

#include <utility>
#include <vector>

namespace dropshade {
namespace {

using Part = ListElement::Part;

QList<ListElement> elementsInView(PaletteList& list) {
    const QRect view = list.view();
    const auto range = list.rows().rowsBetween(view.top(), view.bottom() + 1);
    QList<ListElement> elements;
    for (qsizetype row = range.first; row < range.end; ++row)
        elements += list.elementsOf(row);
    return elements;
}

QString nameOf(PalettesModel& model, const ListElement& element) {
    switch (element.part) {
    case Part::Header:
        return model.palette(element.paletteId).value_or(Palette({}, {}, {})).name();
    case Part::Label:
        return model.scale(element.paletteId, element.scaleId)
            .value_or(PaletteScale({}, {}))
            .name();
    case Part::Swatch: {
        const auto swatch = model.swatch(element.path());
        if (!swatch)
            return {};
        QStringList words{swatch->value()};
        if (swatch->label() && !swatch->label()->isEmpty())
            words.prepend(*swatch->label());
        if (model.isFavorite(swatch->id()))
            //: For screen readers, behind the name of a color
            words.append(PaletteList::tr("favorite"));
        return words.join(QLatin1String(", "));
    }
    case Part::AddScale:
        return AddScaleWidget::title();
    default:
        return ListActions::toolTip(element);
    }
}

/// Something in the list; good for as long as the list shows it.
class AccessibleElement : public QAccessibleInterface, public QAccessibleActionInterface {
public:
    AccessibleElement(PaletteList& list, const ListElement& element)
        : m_list(&list), m_element(element) {}

    const ListElement& element() const { return m_element; }

    bool isValid() const override { return m_list && m_list->rowOf(m_element).has_value(); }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override { return m_list ? m_list->window()->windowHandle() : nullptr; }
    QAccessibleInterface* parent() const override {
        return QAccessible::queryAccessibleInterface(m_list);
    }
    QAccessibleInterface* child(int) const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    void setText(QAccessible::Text, const QString&) override {}

    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Name && isValid() ? nameOf(m_list->model(), m_element)
                                                      : QString();
    }
    QRect rect() const override {
        const QRect area = isValid() ? m_list->areaOf(m_element).toAlignedRect() : QRect();
        return area.isEmpty() ? area : QRect(m_list->mapToGlobal(area.topLeft()), area.size());
    }
    QAccessible::Role role() const override { return QAccessible::Button; }
    QAccessible::State state() const override {
        QAccessible::State state;
        state.invalid = !isValid();
        if (state.invalid)
            return state;
        state.focusable = true;
        state.invisible = !m_list->isVisible();
        state.offscreen = !m_list->areaOf(m_element).intersects(QRectF(m_list->view()));
        state.focused = m_list->hasFocus() && m_list->marks().focused == m_element;
        if (m_element.part == Part::Header) {
            state.expandable = true;
            state.expanded = m_list->model().isExpanded(m_element.paletteId);
            state.collapsed = !state.expanded;
        }
        return state;
    }
    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                    : nullptr;
    }
    QStringList actionNames() const override {
        const bool hasMenu = m_element.part == Part::Header || m_element.part == Part::Label ||
                             m_element.part == Part::Swatch;
        return hasMenu ? QStringList{pressAction(), showMenuAction()} : QStringList{pressAction()};
    }
    void doAction(const QString& name) override {
        if (!isValid())
            return;
        if (name == pressAction())
            Q_EMIT m_list->activationRequested(m_element);
        else if (name == showMenuAction())
            Q_EMIT m_list->menuRequested(m_element);
    }
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

private:
    QPointer<PaletteList> m_list;
    ListElement m_element;
};

class AccessibleList : public QAccessibleWidget {
public:
    explicit AccessibleList(PaletteList& list)
        : QAccessibleWidget(&list, QAccessible::Tree), m_list(list) {
        QObject::connect(&list, &PaletteList::focusedDidChange, &list,
                         [this](const ListElement& element) { tellFocus(element); });
    }
    ~AccessibleList() override {
        for (const auto& [element, id] : m_known)
            QAccessible::deleteAccessibleInterface(id);
    }

    int childCount() const override { return int(elementsInView(m_list).size()); }
    QAccessibleInterface* child(int index) const override {
        const QList<ListElement> elements = elementsInView(m_list);
        return index >= 0 && index < elements.size() ? interfaceOf(elements.at(index)) : nullptr;
    }
    int indexOfChild(const QAccessibleInterface* child) const override {
        const auto* element = dynamic_cast<const AccessibleElement*>(child);
        return element ? int(elementsInView(m_list).indexOf(element->element())) : -1;
    }
    QAccessibleInterface* childAt(int x, int y) const override {
        const ListElement element = m_list.elementAt(m_list.mapFromGlobal(QPoint(x, y)));
        return element.isNone() ? nullptr : interfaceOf(element);
    }
    QAccessibleInterface* focusChild() const override {
        const ListElement& focused = m_list.marks().focused;
        return focused.isNone() ? nullptr : interfaceOf(focused);
    }

private:
    /// Screen readers keep what they were given, so each element has one interface. Those of what
    /// is gone go when they have become many.
    QAccessibleInterface* interfaceOf(const ListElement& element) const {
        constexpr std::size_t many = 2000;
        for (const auto& [known, id] : m_known) {
            if (known == element)
                return QAccessible::accessibleInterface(id);
        }
        if (m_known.size() >= many) {
            for (const auto& [known, id] : m_known)
                QAccessible::deleteAccessibleInterface(id);
            m_known.clear();
        }
        auto* made = new AccessibleElement(m_list, element);
        m_known.emplace_back(element, QAccessible::registerAccessibleInterface(made));
        return made;
    }

    void tellFocus(const ListElement& element) const {
        if (element.isNone() || !QAccessible::isActive())
            return;
        QAccessibleEvent event(interfaceOf(element), QAccessible::Focus);
        QAccessible::updateAccessibility(&event);
    }

    PaletteList& m_list;
    mutable std::vector<std::pair<ListElement, QAccessible::Id>> m_known;
};

QAccessibleInterface* makeAccessible(const QString& className, QObject* object) {
    auto* list = qobject_cast<PaletteList*>(object);
    return list && className == QLatin1String(PaletteList::staticMetaObject.className())
               ? new AccessibleList(*list)
               : nullptr;
}

} // namespace

void installAccessiblePaletteList() {
    // The factories are a list: a second entry would never be asked.
    QAccessible::removeFactory(makeAccessible);
    QAccessible::installFactory(makeAccessible);
}

} // namespace dropshade
