// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "palettes/PresetChoice.h"

#include <algorithm>

namespace dropshade {
namespace {

constexpr qsizetype mostChips = 10;

} // namespace

QList<PaletteSwatch> presetChips(const Palette& preset) {
    const QList<PaletteScale>& scales = preset.scales();
    QList<PaletteSwatch> chips;
    if (scales.isEmpty())
        return chips;
    const qsizetype spread = std::min(scales.size(), mostChips);
    const qsizetype step = (scales.size() + spread - 1) / spread;
    for (qsizetype index = 0; index < scales.size() && chips.size() < mostChips; index += step) {
        const QList<PaletteSwatch>& swatches = scales.at(index).swatches();
        if (!swatches.isEmpty())
            chips.append(swatches.at(swatches.size() / 2));
    }
    return chips;
}

Palette presetCopy(const Palette& preset, const QString& typedName, ReferenceTime now) {
    Palette copy = preset.freshCopy(now);
    if (const QString name = typedName.trimmed(); !name.isEmpty())
        copy.setName(name);
    return copy;
}

} // namespace dropshade
