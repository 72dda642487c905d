// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "palettes/PaletteSwatch.h"

namespace dropshade {

/// Keeps an editor that is open from undoing what another machine does to its swatch meanwhile: of
/// such a swatch only what the user has touched is written.
class SwatchMerge {
public:
    /// `untouched` is what the editor makes of `original` before the user has done anything.
    SwatchMerge(const PaletteSwatch& original, const PaletteSwatch& untouched)
        : m_original(original), m_untouched(untouched), m_edited(untouched), m_written(original) {}

    /// What to write for `edited`, the editor's own state or the original, over `present`.
    [[nodiscard]] PaletteSwatch merged(const PaletteSwatch& edited, const PaletteSwatch& present);

private:
    PaletteSwatch m_original;
    PaletteSwatch m_untouched;
    /// What the editor wanted last, and what came of it.
    PaletteSwatch m_edited;
    PaletteSwatch m_written;
    /// Somebody else has changed the swatch since.
    bool m_isForeign = false;
};

} // namespace dropshade
