// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "palettes/SwatchMerge.h"

namespace dropshade {
namespace {

bool areAlike(const PaletteSwatch& a, const PaletteSwatch& b) {
    return a.value() == b.value() && a.label() == b.label();
}

} // namespace

PaletteSwatch SwatchMerge::merged(const PaletteSwatch& edited, const PaletteSwatch& present) {
    // A cancel gives the original, whose text need not be the editor's for the same colour.
    const PaletteSwatch& shown = areAlike(edited, m_original) ? m_untouched : edited;
    const bool isValueTouched = shown.value() != m_edited.value();
    const bool isLabelTouched = shown.label() != m_edited.label();
    m_edited = shown;
    m_isForeign = m_isForeign || !areAlike(present, m_written);
    m_written = m_isForeign
                    ? PaletteSwatch(edited.id(), isValueTouched ? edited.value() : present.value(),
                                    isLabelTouched ? edited.label() : present.label())
                    : edited;
    return m_written;
}

} // namespace dropshade
