// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "color/SRGBColor.h"

#include <array>
#include <string_view>

namespace dropshade {

// Every measure ignores alpha: a half-transparent colour measures as its opaque counterpart.
// Measures are compared with their minimums unrounded, so the order of the sums is part of them.

/// WCAG 2 relative luminance of gamma-encoded sRGB components: 0 for black, 1 for white. Nothing is
/// clamped, so a component from a wider colour space carries the result below 0 or above 1.
/// Source: WCAG 2.2, "relative luminance", with the breakpoint 0.04045 of IEC 61966-2-1.
[[nodiscard]] double relativeLuminance(double red, double green, double blue);
[[nodiscard]] double relativeLuminance(const SRGBColor& color);

/// WCAG 2 contrast ratio of two relative luminances in either order, from 1 up to 21 for those of
/// sRGB colours. Source: WCAG 2.2, "contrast ratio".
[[nodiscard]] double contrastRatioOfLuminances(double first, double second);

/// WCAG 2 contrast ratio of two colours in either order, from 1 up to 21.
[[nodiscard]] double contrastRatio(const SRGBColor& first, const SRGBColor& second);

/// APCA screen luminance Y, 0 to 1, of gamma-encoded sRGB components; each is clamped to 0 to 1
/// first. Source: APCA-W3 0.1.9 (Myndex), "sRGBtoY".
[[nodiscard]] double apcaLuminance(double red, double green, double blue);
[[nodiscard]] double apcaLuminance(const SRGBColor& color);

/// APCA lightness contrast of text of luminance `textY` on a background of `backgroundY`, both 0 to
/// 1. Positive for dark text on light, negative for light text on dark, about −108 to 106, and
/// never of a magnitude between 0 and 7.3. The two orders of a pair differ in more than the sign.
/// Source: APCA-W3 0.1.9 (Myndex), "APCAcontrast", constants 0.0.98G-4g.
[[nodiscard]] double apcaLc(double textY, double backgroundY);

/// The desktop's scale of font weights, on which regular is 0.
namespace fontWeight {
inline constexpr double regular = 0.0;
inline constexpr double medium = 0.23;
inline constexpr double semibold = 0.3;
inline constexpr double bold = 0.4;
} // namespace fontWeight

/// WCAG 2 large text: 18 points and up, or 14 points and up where it is bold or heavier.
[[nodiscard]] bool isLargeText(double pointSize, double weight);

/// The least ratios that pass; see `passesRatio`.
struct WCAGThresholds {
    double aa = 0.0;
    double aaa = 0.0;

    friend constexpr bool operator==(const WCAGThresholds&, const WCAGThresholds&) = default;
};

/// WCAG 2, success criteria 1.4.3 and 1.4.6.
[[nodiscard]] WCAGThresholds wcagThresholds(double pointSize, double weight);

/// One of the APCA Bronze minimums; `name` is English, whoever shows it translates it.
struct APCATier {
    std::string_view name;
    double minimumLc = 0.0;
};

/// From the most demanding to the least.
inline constexpr std::array<APCATier, 3> apcaTiers = {{
    {"Normal text", 75.0},
    {"Large text", 45.0},
    {"Graphics and UI", 30.0},
}};

/// Both verdicts compare the unrounded measure: a ratio that shows as 4.50 can fail at 4.5.
[[nodiscard]] bool passesRatio(double ratio, double minimum);
/// Polarity has no effect: the magnitude of `lc` is compared.
[[nodiscard]] bool passesLc(double lc, double minimum);

/// Whether white ink has the strictly higher ratio on `color`; on a tie, ink is black.
[[nodiscard]] bool prefersLightInk(const SRGBColor& color);

} // namespace dropshade
