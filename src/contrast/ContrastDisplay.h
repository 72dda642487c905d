// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace dropshade {

// Texts that show a measure. All have a full stop for the decimal point in every locale, and take
// any double.

/// A ratio: "21:1" where it is a whole number, else two decimals, "4.58:1".
[[nodiscard]] std::string formatRatio(double ratio);

/// The number of a ratio for a message, always with two decimals: "4.58", "21.00". Ties round as
/// those of `formatRatio` do.
[[nodiscard]] std::string formatRatioNumber(double ratio);

/// A signed Lc with its fraction cut off toward zero: "Lc 106", "Lc -107". Cut and not rounded,
/// since an Lc of 74.9 fails the tier of 75. Never "-0".
[[nodiscard]] std::string formatLc(double lc);

/// The magnitude of an Lc (−1000 to 1000) for a message, its fraction cut off.
[[nodiscard]] int wholeLcMagnitude(double lc);

/// A WCAG minimum for a message: "7" where it is a whole number, else one decimal, "4.5".
[[nodiscard]] std::string formatThreshold(double minimum);

} // namespace dropshade
