// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "color/ColorConversions.h"
#include "color/SRGBColor.h"

namespace dropshade {

/// Colour spaces of three primaries, each a curve and a matrix to CIE XYZ under D50.
enum class RgbSpace {
    sRGB,
    linearSRGB,
    /// The space of colours that name no other: the primaries of an older display and a gamma of
    /// 461/256.
    genericRGB,
    displayP3,
    adobeRGB,
};

/// The numbers of a colour, as sRGB that nothing has pinned: numbers below 0 or above 1 stand for
/// colours outside the space and are taken as such.
[[nodiscard]] RGBChannels sRGBFrom(RgbSpace space, const RGBChannels& color);

/// The same colour as numbers of the space, not pinned either.
[[nodiscard]] RGBChannels fromSRGB(const SRGBColor& color, RgbSpace space);

/// A grey of the generic grey space, with the gamma of `genericRGB`, as a channel of sRGB.
[[nodiscard]] double sRGBFromGenericGray(double white);

} // namespace dropshade
