// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "palettes/Palette.h"

namespace dropshade {

/// The swatches that stand for a preset in a list: the middle ones of at most ten scales, evenly
/// spread from the first on. A scale without swatches gives none.
[[nodiscard]] QList<PaletteSwatch> presetChips(const Palette& preset);

/// The swatches that stand for a palette whose scales are hidden: those of a preset, or of one
/// scale alone at most ten of its own, evenly spread from the first on.
[[nodiscard]] QList<PaletteSwatch> spineChips(const Palette& palette);

/// The copy that a user adds under the name typed, or under the preset's own where that is blank.
[[nodiscard]] Palette presetCopy(const Palette& preset, const QString& typedName,
                                 ReferenceTime now);

} // namespace dropshade
