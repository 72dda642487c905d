// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "color/SRGBColor.h"

#include <optional>
#include <string_view>

namespace dropshade {

/// The colour that this UTF-8 text means, or nothing. White space at both ends is ignored, and so
/// is the case of letters. In this order the text may be
///
/// - the name of a CSS colour;
/// - 3, 4, 6 or 8 hexadecimal digits, with or without "#", alpha last;
/// - "rgb(…)" or "rgba(…)" with red, green and blue from 0 to 255, clamped, fractions kept;
/// - "hsl(…)" or "hsla(…)" with the hue in degrees and saturation and lightness in percent, the
///   percent sign optional; a hue from −240 to 600 means what it means on the circle.
///
/// The function forms take an optional fourth value, the alpha as a fraction of 1. It is not
/// scaled: "50%" is 50 and so opaque, and an alpha that is no number is 1. The values stand between
/// commas or between white space and slashes; what follows the last ")" is ignored.
///
/// Units are not understood, nor percentages of red, green and blue. A value that isn't a number,
/// "nan" among them, gives nothing, and so does an HSL value so large that a channel can't be
/// computed. No input throws, and the time is linear in the length of the text.
[[nodiscard]] std::optional<SRGBColor> parseColor(std::string_view text);

} // namespace dropshade
