// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "palettes/Palette.h"

#include <functional>
#include <optional>

namespace dropshade {

/// The choice of a preset, and of the name to add it under.
class PresetPicker {
public:
    using OnAdd = std::function<void(const Palette& preset, const QString& name)>;

    /// Starts with the first preset and no name.
    PresetPicker(const QList<Palette>& presets, OnAdd onAdd);

    const QList<Palette>& presets() const { return m_presets; }
    const QString& name() const { return m_name; }
    const std::optional<QUuid>& selectedPresetId() const { return m_selectedPresetId; }

    void setName(const QString& name) { m_name = name; }
    void select(QUuid presetId) { m_selectedPresetId = presetId; }
    /// Hands on the selected preset with the name typed, or with its own where that is blank. False
    /// where none is selected.
    bool add();

private:
    QList<Palette> m_presets;
    OnAdd m_onAdd;
    QString m_name;
    std::optional<QUuid> m_selectedPresetId;
};

} // namespace dropshade
