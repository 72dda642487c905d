// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "palettes/PresetPicker.h"

#include "palettes/PaletteSearch.h"

#include <utility>

namespace dropshade {

PresetPicker::PresetPicker(const QList<Palette>& presets, OnAdd onAdd)
    : m_presets(presets), m_onAdd(std::move(onAdd)) {
    if (!m_presets.isEmpty())
        m_selectedPresetId = m_presets.first().id();
}

bool PresetPicker::add() {
    const auto preset =
        m_selectedPresetId ? itemWithId(m_presets, *m_selectedPresetId) : std::nullopt;
    if (!preset)
        return false;
    const QString trimmed = m_name.trimmed();
    m_onAdd(*preset, trimmed.isEmpty() ? preset->name() : trimmed);
    return true;
}

} // namespace dropshade
