// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "contrast/ColorInputRow.h"

#include "contrast/InlineColorWell.h"
#include "widgets/Announcer.h"
#include "widgets/IconButton.h"
#include "widgets/Label.h"
#include "widgets/Metrics.h"
#include "widgets/TextField.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QVBoxLayout>

namespace dropshade {

ColorInputRow::ColorInputRow(const ColorWindowSurroundings& surroundings, Announcer& announcer,
                             ContrastModel& model, SwatchTarget target, QWidget* parent)
    : QWidget(parent), m_surroundings(surroundings), m_announcer(announcer), m_model(model),
      m_target(target), m_input(target, model, surroundings.copier),
      m_menu(surroundings, announcer, model, target) {
    build(target == SwatchTarget::background ? tr("Background", "Field label")
                                             : tr("Foreground", "Field label"));
    connectField();
    connect(&model, &ContrastModel::colorsDidChange, m_well, &InlineColorWell::refresh);
}

void ColorInputRow::build(const QString& label) {
    const Look& look = m_surroundings.look;
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(metrics::space4);
    auto* title = new Label(look, TextStyle::FieldLabel, Label::Tone::Secondary, label);
    title->setContentsMargins(metrics::windowMargin, 0, 0, 0);
    column->addWidget(title);
    m_well = new InlineColorWell(
        look, {[this] { return m_model.color(m_target); },
               [this](const SRGBColor& color) { m_model.setColor(m_target, color); }});
    m_field = new TextField(look, TextField::Content::Value);
    m_field->setAccessibleName(label);
    m_field->setFailure(tr("Couldn't parse this color", "Invalid color tooltip"));
    title->setBuddy(m_field);
    auto* sampler =
        new IconButton(look, Icon::Sampler, tr("Pick color from screen", "Eyedropper tooltip"));
    //: %1 is the field's label
    sampler->setAccessibleName(tr("%1 — pick color from screen", "Eyedropper name").arg(label));
    auto* copyButton = new IconButton(look, Icon::Copy, tr("Copy", "Copy button tooltip"));
    m_actions = new IconButton(look, Icon::Options, tr("More actions", "Action menu tooltip"));
    auto* row = new QHBoxLayout;
    const int reach = (m_well->sizeHint().width() - metrics::control) / 2;
    row->setContentsMargins(metrics::windowMargin - reach, 0, metrics::windowMargin, 0);
    row->setSpacing(0);
    row->addWidget(m_well);
    row->addSpacing(metrics::space8 - reach);
    row->addWidget(m_field, 1);
    row->addSpacing(metrics::space4);
    for (IconButton* button : {sampler, copyButton, m_actions})
        row->addWidget(button);
    // The rings of the well reach beyond the line.
    column->addSpacing(-reach);
    column->addLayout(row);
    connect(sampler, &QAbstractButton::clicked, this, [this] {
        if (m_model.pickAction)
            m_model.pickAction(m_target);
    });
    connect(copyButton, &QAbstractButton::clicked, this, &ColorInputRow::copy);
    connect(m_actions, &QAbstractButton::clicked, this, &ColorInputRow::openActions);
}

void ColorInputRow::connectField() {
    m_field->setText(m_input.text());
    connect(m_field, &QLineEdit::textEdited, &m_input, &ColorInputModel::edit);
    connect(m_field, &QLineEdit::returnPressed, &m_input, &ColorInputModel::submit);
    connect(m_field, &TextField::focusEntered, &m_input, [this] { m_input.setFocused(true); });
    connect(m_field, &TextField::focusLeft, &m_input, [this] { m_input.setFocused(false); });
    connect(&m_input, &ColorInputModel::textDidChange, m_field,
            [this] { m_field->setText(m_input.text()); });
    connect(&m_input, &ColorInputModel::invalidDidChange, m_field,
            [this] { m_field->setFailed(m_input.invalid()); });
}

void ColorInputRow::copy() {
    const QString text = m_surroundings.copier.copy(m_model.color(m_target));
    //: What a screen reader says after a copy; %1 is the text that was copied
    m_announcer.announce(tr("Copied %1", "Announcement").arg(text));
}

void ColorInputRow::openActions() {
    m_menu.popup(*m_actions);
}

} // namespace dropshade
