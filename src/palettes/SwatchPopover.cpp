// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "palettes/SwatchPopover.h"

#include "ColorSelector/SelectorPanel.h"
#include "palettes/PopoverButtons.h"
#include "widgets/ColorConversion.h"
#include "widgets/ColorWell.h"
#include "widgets/Label.h"
#include "widgets/Metrics.h"
#include "widgets/TextButton.h"
#include "widgets/TextField.h"

#include <QKeyEvent>
#include <QVBoxLayout>

namespace dropshade {
namespace {

constexpr int wellSide = 32;
/// Behind the label, and the field between its gaps.
constexpr int selectorPlace = 4;

} // namespace

SwatchPopover::SwatchPopover(const Look& look, QWidget& anchor, std::unique_ptr<SwatchEdit> edit)
    : Popover(look, anchor), m_edit(std::move(edit)) {
    //: Name of the popover that adds a color, for screen readers
    const QString adds = tr("Add color");
    //: Name of the popover that edits a color, for screen readers
    const QString edits = tr("Edit color");
    setAccessibleName(m_edit->isNew() ? adds : edits);
    content()->setFixedWidth(popoverFieldWidth + 2 * metrics::space16);
    m_column = new QVBoxLayout(content());
    m_column->setContentsMargins(0, metrics::space16, 0, metrics::space16);
    m_column->setSpacing(0);
    addValueRow(*addPadded());
    m_column->addSpacing(metrics::space12);
    QVBoxLayout* column = addPadded();
    addNameRow(*column);
    column->addSpacing(metrics::space16);
    //: Default button of the popover that adds a color
    const QString add = tr("Add");
    //: Default button of the popover that edits a color
    const QString done = tr("Done");
    const PopoverButtons buttons = addPopoverButtons(look, *column, m_edit->isNew() ? add : done);
    connect(buttons.cancel, &QAbstractButton::clicked, this, &SwatchPopover::cancel);
    connect(buttons.commit, &QAbstractButton::clicked, this, &SwatchPopover::commit);
    for (const TextField* field : {m_value, m_name})
        connect(field, &QLineEdit::returnPressed, this, &SwatchPopover::commit);
    TextField* first = m_edit->isNew() ? m_value : m_name;
    first->setFocus();
    first->selectAll();
}

SwatchPopover::~SwatchPopover() = default;

/// The selectors and the well have rings that reach into the padding.
QVBoxLayout* SwatchPopover::addPadded(int reach) {
    auto* part = new QVBoxLayout;
    part->setContentsMargins(metrics::space16 - reach, 0, metrics::space16, 0);
    part->setSpacing(0);
    m_column->addLayout(part);
    return part;
}

void SwatchPopover::addLabel(QVBoxLayout& column, const QString& words) {
    column.addWidget(
        new Label(look(), TextStyle::FieldLabel, Label::Tone::Secondary, words, content()));
    column.addSpacing(metrics::space4);
}

void SwatchPopover::addValueRow(QVBoxLayout& column) {
    //: Label of the field with a color's value
    const QString title = tr("Value");
    addLabel(column, title);
    m_well = new ColorWell(look(), title, wellSide, content());
    m_well->setColor(drawable(m_edit->color()));
    m_value = new TextField(look(), TextField::Content::Value, content());
    m_value->setAccessibleName(title);
    m_value->setText(m_edit->valueText());
    //: Tooltip of the sign in a field whose text is no color
    m_value->setFailure(tr("Couldn't parse this color"));
    const int reach = (m_well->sizeHint().width() - wellSide) / 2;
    auto* row = new QHBoxLayout;
    row->setSpacing(metrics::space8 - reach);
    row->addWidget(m_well);
    row->addWidget(m_value);
    m_column->addSpacing(-reach);
    addPadded(reach)->addLayout(row);
    m_column->addSpacing(-reach);
    connect(m_value, &QLineEdit::textEdited, m_edit.get(), &SwatchEdit::typeValue);
    connect(m_edit.get(), &SwatchEdit::colorDidChange, this, &SwatchPopover::followColor);
    connect(m_edit.get(), &SwatchEdit::valueTextDidChange, this,
            [this] { m_value->setText(m_edit->valueText()); });
    connect(m_edit.get(), &SwatchEdit::isInvalidDidChange, this,
            [this] { m_value->setFailed(m_edit->isInvalid()); });
    connect(m_well, &QAbstractButton::clicked, this, &SwatchPopover::toggleSelector);
}

void SwatchPopover::addNameRow(QVBoxLayout& column) {
    //: Label of the field with a color's name
    const QString title = tr("Name");
    addLabel(column, title);
    m_name = new TextField(look(), TextField::Content::Words, content());
    m_name->setAccessibleName(title);
    m_name->setText(m_edit->label());
    //: Placeholder of the field with a color's name
    m_name->setPlaceholderText(tr("e.g. blue-500"));
    column.addWidget(m_name);
    connect(m_name, &QLineEdit::textEdited, m_edit.get(), &SwatchEdit::typeLabel);
}

/// The selectors open beneath the field, so that the value stays in view.
void SwatchPopover::toggleSelector() {
    if (m_selector) {
        m_selector->setVisible(!m_selector->isVisible());
    } else {
        m_selector = new SelectorPanel(look(), SelectorPanel::Parts::WithoutAlpha, metrics::space16,
                                       content());
        m_selector->setFixedHeight(m_selector->sizeHint().height() + metrics::space4);
        m_column->insertWidget(selectorPlace, m_selector);
        connect(m_selector, &SelectorPanel::componentsChanged, this,
                [this](const HSBComponents& components) {
                    m_edit->pickColor(hsbToSRGB(components.hue, components.saturation,
                                                components.brightness, 1.0));
                });
    }
    m_selector->setComponents(hsbComponents(m_edit->color()));
    m_well->setOpen(m_selector->isVisible());
}

void SwatchPopover::followColor() {
    m_well->setColor(drawable(m_edit->color()));
    // What the user is dragging has the hue that a grey has lost.
    const HSBComponents shown = hsbComponents(m_edit->color());
    const bool isOther =
        m_selector && hsbToSRGB(m_selector->components().hue, m_selector->components().saturation,
                                m_selector->components().brightness, 1.0) != m_edit->color();
    if (isOther)
        m_selector->setComponents(shown);
}

void SwatchPopover::commit() {
    m_edit->add();
    close();
}

void SwatchPopover::cancel() {
    m_edit->cancel();
    close();
}

void SwatchPopover::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape)
        cancel();
    else
        Popover::keyPressEvent(event);
}

} // namespace dropshade
