// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "palettes/PresetPicker.h"
#include "widgets/Sheet.h"

#include <memory>

namespace dropshade {

/// The sheet in which the user picks a preset and names its copy.
class PresetPickerSheet : public Sheet {
    Q_OBJECT

public:
    PresetPickerSheet(const Look& look, QWidget& host, std::unique_ptr<PresetPicker> picker);
    ~PresetPickerSheet() override;

private:
    void build(const Look& look);
    void add();

    std::unique_ptr<PresetPicker> m_picker;
};

} // namespace dropshade
