// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "widgets/Picker.h"

#include "widgets/Icon.h"
#include "widgets/Menu.h"
#include "widgets/Metrics.h"
#include "widgets/Painting.h"
#include "widgets/TypeScale.h"

#include <QAccessible>
#include <QFontMetrics>
#include <QKeyEvent>
#include <QWheelEvent>

#include <algorithm>

namespace dropshade {

Picker::Picker(const Look& look, const QString& name, QWidget* parent) : Button(look, parent) {
    setAccessibleName(name);
    setFont(textFont(TextStyle::Body));
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    connect(this, &QAbstractButton::clicked, this, &Picker::open);
}

void Picker::addHeader(const QString& title) {
    m_entries.append({Kind::Header, title, {}});
}

void Picker::addRow(const QString& title, const QVariant& value) {
    m_entries.append({Kind::Row, title, value});
    updateGeometry();
}

void Picker::addSeparator() {
    m_entries.append({Kind::Separator, {}, {}});
}

int Picker::count() const {
    return static_cast<int>(
        std::count_if(m_entries.begin(), m_entries.end(),
                      [](const Entry& entry) { return entry.kind == Kind::Row; }));
}

const Picker::Entry* Picker::row(int index) const {
    for (const Entry& entry : m_entries) {
        if (entry.kind == Kind::Row && index-- == 0)
            return &entry;
    }
    return nullptr;
}

QString Picker::currentText() const {
    const Entry* entry = row(m_current);
    return entry ? entry->title : QString();
}

QVariant Picker::currentValue() const {
    const Entry* entry = row(m_current);
    return entry ? entry->value : QVariant();
}

void Picker::setCurrentIndex(int index) {
    if (index == m_current)
        return;
    m_current = index;
    setAccessibleDescription(currentText());
    update();
}

void Picker::setCurrentValue(const QVariant& value) {
    for (int index = 0; const Entry* entry = row(index); ++index) {
        if (entry->value == value) {
            setCurrentIndex(index);
            return;
        }
    }
    setCurrentIndex(-1);
}

QSize Picker::sizeHint() const {
    int widest = 0;
    for (const Entry& entry : m_entries)
        widest = std::max(widest, QFontMetrics(font()).horizontalAdvance(entry.title));
    return {widest + 2 * metrics::controlPadding + metrics::icon + metrics::space8,
            std::max(metrics::control, lineHeight(TextStyle::Body) + metrics::space12)};
}

QSize Picker::minimumSizeHint() const {
    return {3 * metrics::controlPadding + metrics::icon, sizeHint().height()};
}

void Picker::paint(QPainter& painter) {
    if (isEnabled())
        fillRounded(painter, rect(), cornerRadius(), filled(theme().surfaceButton));
    strokeEdge(painter, rect(), cornerRadius(), theme().lineEdge);
    const int side = metrics::icon;
    const QRect words = rect().adjusted(metrics::controlPadding, 0,
                                        -metrics::controlPadding - side - metrics::space4, 0);
    painter.setFont(font());
    painter.setPen(isEnabled() ? theme().textPrimary : theme().textTertiary);
    painter.drawText(words, Qt::AlignVCenter | Qt::AlignLeft,
                     QFontMetrics(font()).elidedText(currentText(), Qt::ElideRight, words.width()));
    painter.drawPixmap(width() - metrics::space8 - side, (height() - side) / 2,
                       iconPixmap(Icon::Picker,
                                  isEnabled() ? theme().textSecondary : theme().textTertiary, side,
                                  devicePixelRatioF()));
}

void Picker::open() {
    auto* menu = new Menu(look(), this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->setMinimumWidth(width());
    QAction* current = nullptr;
    int index = 0;
    for (const Entry& entry : std::as_const(m_entries)) {
        if (entry.kind == Kind::Header) {
            menu->addHeader(entry.title);
        } else if (entry.kind == Kind::Separator) {
            menu->addSeparator();
        } else {
            QAction* action = menu->addRow(entry.title);
            action->setCheckable(true);
            action->setChecked(index == m_current);
            if (index == m_current)
                current = action;
            connect(action, &QAction::triggered, this, [this, index] { pick(index); });
            ++index;
        }
    }
    menu->popup(mapToGlobal(QPoint(0, height() + metrics::space4)));
    if (current)
        menu->setActiveAction(current);
}

void Picker::pick(int index) {
    if (!row(index))
        return;
    if (index != m_current) {
        setCurrentIndex(index);
        Q_EMIT picked(index);
    }
    Q_EMIT chosen(index);
}

void Picker::step(int by) {
    pick(std::clamp(m_current + by, 0, std::max(0, count() - 1)));
}

void Picker::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Down:
        event->modifiers().testFlag(Qt::AltModifier) ? open() : step(1);
        break;
    case Qt::Key_Up:
        event->modifiers().testFlag(Qt::AltModifier) ? open() : step(-1);
        break;
    case Qt::Key_Home:
        pick(0);
        break;
    case Qt::Key_End:
        pick(count() - 1);
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        open();
        break;
    default:
        Button::keyPressEvent(event);
    }
}

void Picker::wheelEvent(QWheelEvent* event) {
    // The wheel is for what the picker lies on, or a scroll over it would change a setting.
    event->ignore();
}

} // namespace dropshade
