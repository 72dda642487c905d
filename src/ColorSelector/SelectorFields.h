// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "color/ColorConversions.h"

namespace dropshade {

/// What the selectors show before there ever was a colour.
inline constexpr HSBComponents firstSelectorFields{0.58, 0.55, 0.85, 1.0};

/// `fields`, the values of the selectors, made to follow `color`. Each value is taken over only if
/// it differs by more than `deadBand`, so that a selector does not tremble under the hand that
/// moves it. A value that the colour does not have stays: a grey has no hue, and black has neither
/// hue nor saturation, so the user's own survive a trip through them. A hue of 1 is the hue of 0,
/// and stays as well.
[[nodiscard]] HSBComponents followingColor(const HSBComponents& fields, const SRGBColor& color,
                                           double deadBand);

/// Whether each component of the two differs by less than 0.001.
[[nodiscard]] bool nearlyMatch(const SRGBColor& first, const SRGBColor& second);

} // namespace dropshade
