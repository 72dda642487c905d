// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "color/SRGBColor.h"

#include <cstdint>

namespace dropshade {

/// A colour as whole numbers, each 0 to 255; alpha is straight.
struct RGBA8 {
    std::int64_t red = 0;
    std::int64_t green = 0;
    std::int64_t blue = 0;
    std::int64_t alpha = 255;

    friend constexpr bool operator==(const RGBA8&, const RGBA8&) = default;
};

/// `hue` in degrees, from 0 up to but not including 360; `saturation` and `lightness` 0 to 1.
struct HSLComponents {
    double hue = 0.0;
    double saturation = 0.0;
    double lightness = 0.0;

    friend constexpr bool operator==(const HSLComponents&, const HSLComponents&) = default;
};

/// Gamma-encoded channels that nothing has pinned yet: 0 to 1 inside sRGB, and beyond outside it.
struct RGBChannels {
    double red = 0.0;
    double green = 0.0;
    double blue = 0.0;

    friend constexpr bool operator==(const RGBChannels&, const RGBChannels&) = default;
};

/// All four as fractions of 1; `hue` as a fraction of a full turn, below 1.
struct HSBComponents {
    double hue = 0.0;
    double saturation = 0.0;
    double brightness = 0.0;
    double alpha = 1.0;

    friend constexpr bool operator==(const HSBComponents&, const HSBComponents&) = default;
};

/// Each component times 255, rounded to the nearest whole number, halves away from zero. The only
/// way in which a component becomes an 8-bit value.
[[nodiscard]] RGBA8 rgba255(const SRGBColor& color);

/// The hexcone model of Joblove and Greenberg, "Color spaces for computer graphics" (1978), as CSS
/// Color 4 has it in section 7. Components 0 to 1. A grey has hue 0 and saturation 0; on a tie for
/// the largest component red goes before green, green before blue.
[[nodiscard]] HSLComponents hslComponents(double red, double green, double blue);

/// One channel of HSL to RGB (CSS Color 3, section 4.2.4); `t` is the channel's hue as a fraction
/// of a turn. One step brings `t` from −1…2 into 0…1; anything further out stays out and gives `p`.
[[nodiscard]] double hueChannel(double p, double q, double t);

/// HSL to RGB by the same source. Hue as a fraction of a turn (good from −2/3 to 5/3), saturation
/// and lightness as fractions of 1, none of them clamped. Channels of arguments out of range may be
/// out of range, and those of huge ones may not be numbers.
[[nodiscard]] RGBChannels hslChannels(double hue, double saturation, double lightness);

/// The colour of `hslChannels`, pinned by `SRGBColor`.
[[nodiscard]] SRGBColor hslToSRGB(double hue, double saturation, double lightness, double alpha);

/// The hexcone HSB (HSV) model of Smith, "Color gamut transform pairs" (1978). Black has saturation
/// 0, a grey has hue 0.
[[nodiscard]] HSBComponents hsbComponents(const SRGBColor& color);

/// HSB to RGB by the same source, the components as in `HSBComponents`. A hue of 1 is that of 0.
[[nodiscard]] SRGBColor hsbToSRGB(double hue, double saturation, double brightness, double alpha);

} // namespace dropshade
