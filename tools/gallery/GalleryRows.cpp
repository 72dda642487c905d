// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "GalleryRows.h"

#include "KeyboardShortcuts/RecorderCocoa.h"
#include "app/MenuBarIconPicker.h"
#include "platform/ModifierKeys.h"
#include "widgets/ColorWell.h"
#include "widgets/IconButton.h"
#include "widgets/Label.h"
#include "widgets/Metrics.h"
#include "widgets/Painting.h"
#include "widgets/Picker.h"
#include "widgets/Pill.h"
#include "widgets/SegmentedControl.h"
#include "widgets/Slider.h"
#include "widgets/TextButton.h"
#include "widgets/TextField.h"
#include "widgets/Toggle.h"

#include <QAbstractButton>
#include <QApplication>
#include <QHoverEvent>
#include <QRadioButton>

namespace dropshade {

namespace {

const QString sampleText = QStringLiteral("#E4572E");
constexpr int fieldWidth = 140;

constexpr std::uint32_t keyC = 8;

enum Column { Name, Rest, Hover, Pressed, Focus, Disabled };

/// The rings of what can't all have the keyboard at once, over the controls.
class Rings : public QWidget {
public:
    Rings(const Look& look, const QList<QWidget*>& focused, QWidget* parent)
        : QWidget(parent), m_look(look), m_focused(focused) {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        resize(parent->size());
        show();
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        for (QWidget* control : m_focused) {
            auto* choice = control->findChild<QRadioButton*>();
            paintRing(painter, choice ? *choice : *control);
        }
    }

private:
    void paintRing(QPainter& painter, const QWidget& control) const {
        const QVariant radius = control.property("focusRadius");
        if (!radius.isValid())
            return;
        const int inset = control.property("focusInset").toInt();
        const QRect shape(control.mapTo(parentWidget(), QPoint()), control.size());
        drawFocusRing(painter, shape.adjusted(inset, inset, -inset, -inset), radius.toDouble(),
                      m_look.theme());
    }

    const Look& m_look;
    QList<QWidget*> m_focused;
};

} // namespace

GalleryRows::GalleryRows(const Surroundings& surroundings)
    : m_with(surroundings), m_look(surroundings.delegate.look()), m_grid(new QGridLayout(this)) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    m_grid->setContentsMargins(40, 24, 40, 24);
    m_grid->setHorizontalSpacing(24);
    m_grid->setVerticalSpacing(24);
    addHeads();
    addButtons();
    addFields();
    addRecorders();
    addChoices();
    addColors();
}

void GalleryRows::addHeads() {
    m_grid->addWidget(
        new Label(m_look, TextStyle::Heading, Label::Tone::Primary, QStringLiteral("Controls")),
        m_row, Name);
    const QStringList heads{QStringLiteral("Rest"), QStringLiteral("Hover"),
                            QStringLiteral("Pressed"), QStringLiteral("Focus"),
                            QStringLiteral("Disabled")};
    for (int column = 0; column < heads.size(); ++column)
        m_grid->addWidget(
            new Label(m_look, TextStyle::Overline, Label::Tone::Secondary, heads[column]), m_row,
            column + Rest);
    ++m_row;
}

void GalleryRows::addRow(const QString& name, const Make& make) {
    m_grid->addWidget(new Label(m_look, TextStyle::Control, Label::Tone::Primary, name), m_row,
                      Name);
    for (int column = Rest; column <= Disabled; ++column) {
        QWidget* control = make();
        m_grid->addWidget(control, m_row, column, Qt::AlignLeft | Qt::AlignVCenter);
        control->setEnabled(column != Disabled);
        if (column == Hover)
            m_hovered.append(control);
        if (column == Pressed)
            m_pressed.append(control);
        if (column == Focus)
            m_focused.append(control);
    }
    ++m_row;
}

void GalleryRows::addButtons() {
    addRow(QStringLiteral("Icon button"),
           [this] { return new IconButton(m_look, Icon::Sampler, QStringLiteral("Sample")); });
    addRow(QStringLiteral("Icon toggle, on"), [this] {
        auto* toggle = new IconButton(m_look, Icon::Bolt, QStringLiteral("Close"));
        toggle->setCheckable(true);
        toggle->setChecked(true);
        return toggle;
    });
    using Kind = TextButton::Kind;
    const auto button = [this](Kind kind, const char* word) {
        return
            [this, kind, word] { return new TextButton(m_look, kind, QString::fromLatin1(word)); };
    };
    addRow(QStringLiteral("Default button"), button(Kind::Default, "Done"));
    addRow(QStringLiteral("Button"), button(Kind::Plain, "Cancel"));
    addRow(QStringLiteral("Destructive button"), button(Kind::Destructive, "Delete"));
    addRow(QStringLiteral("Quiet button"), [this] {
        auto* quiet = new TextButton(m_look, Kind::Quiet, QStringLiteral("Swap Colors"));
        quiet->setLeadingIcon(Icon::Refresh);
        return quiet;
    });
}

void GalleryRows::addFields() {
    const auto field = [this](const QString& text, bool isFailed) {
        auto* made = new TextField(m_look, text.isEmpty() ? TextField::Content::Words
                                                          : TextField::Content::Value);
        made->setFixedWidth(fieldWidth);
        made->setText(text);
        made->setPlaceholderText(QStringLiteral("e.g. blue-500"));
        made->setFailure(QStringLiteral("Couldn't parse this color"));
        made->setFailed(isFailed);
        return made;
    };
    addRow(QStringLiteral("Text field"), [field] { return field(sampleText, false); });
    addRow(QStringLiteral("Placeholder"), [field] { return field(QString(), false); });
    addRow(QStringLiteral("Failed field"),
           [field] { return field(QStringLiteral("#E4572G"), true); });
}

void GalleryRows::addChoices() {
    const auto toggle = [this](bool on) {
        return [this, on] {
            auto* made = new Toggle(m_look, QStringLiteral("Toggle"));
            made->setChecked(on);
            return made;
        };
    };
    addRow(QStringLiteral("Toggle, off"), toggle(false));
    addRow(QStringLiteral("Toggle, on"), toggle(true));
    addRow(QStringLiteral("Slider"), [this] {
        auto* slider = new Slider(m_look, QStringLiteral("Slider"));
        slider->setRange(0, 8);
        slider->setValue(3);
        slider->setFixedWidth(fieldWidth);
        return slider;
    });
    addRow(QStringLiteral("Drop-down picker"), [this] {
        auto* picker = new Picker(m_look, QStringLiteral("Order"));
        picker->setFixedWidth(fieldWidth);
        picker->addRow(QStringLiteral("Frequency"));
        picker->setCurrentIndex(0);
        return picker;
    });
    addRow(QStringLiteral("Segmented picker"), [this] {
        auto* segments = new SegmentedControl(m_look, QStringLiteral("Measure"),
                                              {QStringLiteral("WCAG 2"), QStringLiteral("APCA")});
        segments->setCurrentIndex(0);
        return segments;
    });
    addRow(QStringLiteral("Icon tiles"), [this] {
        auto* tiles = new MenuBarIconPicker(m_look, QStringLiteral("Icon"));
        tiles->setIconStyle(MenuBarIconStyle::Picker);
        return tiles;
    });
}

void GalleryRows::addRecorders() {
    const auto recorder = [this](const ShortcutName& name) {
        return [this, name] {
            auto* made = new RecorderCocoa(m_look, {m_with.delegate.shortcuts(), m_with.alerts},
                                           name, QStringLiteral("Recorder"));
            made->setFixedWidth(fieldWidth);
            return made;
        };
    };
    m_with.layout.setCharacter(keyC, QStringLiteral("c"));
    m_with.delegate.shortcuts().setShortcut(Shortcut{keyC, controlKey | optionKey},
                                            shortcutNames::convert);
    addRow(QStringLiteral("Recorder"), recorder(shortcutNames::palettes));
    addRow(QStringLiteral("Recorder, set"), recorder(shortcutNames::convert));
}

void GalleryRows::addColors() {
    addRow(QStringLiteral("Colour well"), [this] {
        auto* well = new ColorWell(m_look, QStringLiteral("Edit color"), metrics::control);
        well->setColor(QColor(0x48, 0x90, 0xA6));
        return well;
    });
    addRow(QStringLiteral("No colour"), [this] {
        return new ColorWell(m_look, QStringLiteral("Edit color"), metrics::control);
    });
    bool passes = false;
    addRow(QStringLiteral("Verdict pill"), [this, &passes] {
        auto* pill = new Pill(m_look);
        passes = !passes;
        pill->setVerdict(passes ? QStringLiteral("AA") : QStringLiteral("AAA"), passes, {});
        return pill;
    });
}

void GalleryRows::setStates() {
    for (QWidget* control : std::as_const(m_hovered)) {
        QHoverEvent enter(QEvent::HoverEnter, QPointF(4, 4), QPointF(4, 4), QPointF(-1, -1));
        QApplication::sendEvent(control, &enter);
        for (auto* segment : control->findChildren<QAbstractButton*>())
            QApplication::sendEvent(segment, &enter);
    }
    for (QWidget* control : std::as_const(m_pressed)) {
        if (auto* button = qobject_cast<QAbstractButton*>(control))
            button->setDown(true);
        if (auto* slider = qobject_cast<QAbstractSlider*>(control))
            slider->setSliderDown(true);
        const auto choices = control->findChildren<QRadioButton*>();
        if (!choices.isEmpty())
            choices.last()->setDown(true);
    }
    // It draws its ring by itself.
    for (QWidget* control : std::as_const(m_focused)) {
        if (qobject_cast<Slider*>(control))
            control->setFocus(Qt::TabFocusReason);
    }
    new Rings(m_look, m_focused, this);
}

void GalleryRows::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const Theme& theme = m_look.theme();
    painter.fillRect(rect(), theme.surfaceWindow);
    for (int row = 1; row < m_row; ++row) {
        const int y = m_grid->cellRect(row, Name).top() - m_grid->verticalSpacing() / 2;
        painter.fillRect(QRect(40, y, width() - 80, 1), theme.lineHairline);
    }
}

} // namespace dropshade
