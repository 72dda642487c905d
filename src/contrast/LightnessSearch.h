// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "color/SRGBColor.h"

#include <functional>
#include <optional>

namespace dropshade {

/// HSL with all three as fractions of 1, the hue as a fraction of a turn.
struct HSLFractions {
    double hue = 0.0;
    double saturation = 0.0;
    double lightness = 0.0;

    friend constexpr bool operator==(const HSLFractions&, const HSLFractions&) = default;
};

/// sRGB components, 0 to 1, to HSL (CSS Color 4, section 7). Unlike `hslComponents` it keeps the
/// hue a fraction and so costs no rounding by way of degrees. A grey has hue 0 and saturation 0; on
/// a tie for the largest component red goes before green, green before blue.
[[nodiscard]] HSLFractions rgbToHsl(double red, double green, double blue);

/// HSL to an sRGB colour; a lightness outside 0 to 1 is clamped first.
[[nodiscard]] SRGBColor hslToRgb(double hue, double saturation, double lightness,
                                 double alpha = 1.0);

/// Whether a colour is good enough.
using ColorTest = std::function<bool(const SRGBColor&)>;

/// `moved`, which fails `passes`, with its lightness moved as little as makes it pass; hue,
/// saturation and alpha stay. It is looked for from the black end and from the white end, and the
/// answer nearer to where the lightness was is taken, the darker one on a tie. None where neither
/// end passes.
///
/// The measure need not be monotonic on the way: each search holds a lightness that passes and one
/// that fails, and halves the stretch between them 60 times, so it ends on the passing side of some
/// crossing.
[[nodiscard]] std::optional<SRGBColor> withNearestPassingLightness(const SRGBColor& moved,
                                                                   const ColorTest& passes);

} // namespace dropshade
