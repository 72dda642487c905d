// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "palettes/PresetPickerSheet.h"

#include "palettes/PopoverButtons.h"
#include "palettes/PresetList.h"
#include "widgets/Label.h"
#include "widgets/Metrics.h"
#include "widgets/TextButton.h"
#include "widgets/TextField.h"

#include <QVBoxLayout>

namespace dropshade {

PresetPickerSheet::PresetPickerSheet(const Look& look, QWidget& host,
                                     std::unique_ptr<PresetPicker> picker)
    : Sheet(look, host), m_picker(std::move(picker)) {
    //: Name of a sheet, for screen readers
    setAccessibleName(tr("New palette from a preset"));
    build(look);
}

PresetPickerSheet::~PresetPickerSheet() = default;

void PresetPickerSheet::build(const Look& look) {
    auto* column = new QVBoxLayout(panel());
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    const auto addLabel = [&](const QString& words) {
        column->addWidget(
            new Label(look, TextStyle::FieldLabel, Label::Tone::Secondary, words, panel()));
        column->addSpacing(metrics::space4);
    };
    //: Label of the field with the new palette's name
    addLabel(tr("Name"));
    auto* name = new TextField(look, TextField::Content::Words, panel());
    name->setAccessibleName(tr("Name"));
    //: Placeholder of the field with the new palette's name
    name->setPlaceholderText(tr("New palette"));
    column->addWidget(name);
    column->addSpacing(metrics::space12);
    //: Label of the list of presets
    addLabel(tr("Preset"));
    auto* list = new PresetList(look, *m_picker, panel());
    list->setAccessibleName(tr("Preset"));
    column->addWidget(list);
    column->addSpacing(metrics::space20);
    //: Default button of the sheet with the presets
    const PopoverButtons buttons = addPopoverButtons(look, *column, tr("Add"));
    connect(buttons.cancel, &QAbstractButton::clicked, this, &Sheet::closeSheet);
    connect(buttons.commit, &QAbstractButton::clicked, this, &PresetPickerSheet::add);
    connect(name, &QLineEdit::returnPressed, this, &PresetPickerSheet::add);
    connect(name, &QLineEdit::textChanged, this,
            [this](const QString& text) { m_picker->setName(text); });
    connect(list, &PresetList::chosen, this, &PresetPickerSheet::add);
}

void PresetPickerSheet::add() {
    m_picker->add();
    closeSheet();
}

} // namespace dropshade
