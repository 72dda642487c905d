// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "color/SRGBColor.h"

#include <optional>

namespace dropshade {

// Fixes for a pair that is hard to read. Each changes the lightness of one colour of the pair as
// little as it can; hue, saturation and alpha stay. The result passes when it is measured again. A
// pair that passes already gives `moved` back bit for bit. None where no lightness of that hue and
// saturation reaches the wanted value.

/// For a WCAG 2 contrast ratio of at least `wantedRatio`. Up to 4.58 there is always an answer.
[[nodiscard]] std::optional<SRGBColor>
adjustedToMeetRatio(const SRGBColor& moved, const SRGBColor& fixed, double wantedRatio);

/// For an APCA contrast whose magnitude is at least that of `wantedLc`: a fix may cross to the
/// other polarity. `movedIsBackground` says which colour of the pair is the text, since Lc depends
/// on it.
[[nodiscard]] std::optional<SRGBColor> adjustedToMeetLc(const SRGBColor& moved,
                                                        const SRGBColor& fixed, double wantedLc,
                                                        bool movedIsBackground);

} // namespace dropshade
