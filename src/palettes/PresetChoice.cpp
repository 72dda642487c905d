// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "palettes/PresetChoice.h"

#include <algorithm>

namespace dropshade {
namespace {

constexpr qsizetype mostChips = 10;

/// How far apart at most ten of `count` things lie that are evenly spread.
qsizetype stepThrough(qsizetype count) {
    return std::max<qsizetype>(1, (count + mostChips - 1) / mostChips);
}

} // namespace

QList<PaletteSwatch> presetChips(const Palette& preset) {
    const QList<PaletteScale>& scales = preset.scales();
    QList<PaletteSwatch> chips;
    const qsizetype step = stepThrough(scales.size());
    for (qsizetype index = 0; index < scales.size() && chips.size() < mostChips; index += step) {
        const QList<PaletteSwatch>& swatches = scales.at(index).swatches();
        if (!swatches.isEmpty())
            chips.append(swatches.at(swatches.size() / 2));
    }
    return chips;
}

QList<PaletteSwatch> spineChips(const Palette& palette) {
    if (palette.scales().size() != 1)
        return presetChips(palette);
    const QList<PaletteSwatch>& swatches = palette.scales().first().swatches();
    QList<PaletteSwatch> chips;
    for (qsizetype index = 0; index < swatches.size(); index += stepThrough(swatches.size()))
        chips.append(swatches.at(index));
    return chips;
}

Palette presetCopy(const Palette& preset, const QString& typedName, ReferenceTime now) {
    Palette copy = preset.freshCopy(now);
    if (const QString name = typedName.trimmed(); !name.isEmpty())
        copy.setName(name);
    return copy;
}

} // namespace dropshade
