// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace dropshade {

/// How large the palettes window draws its swatches, from the smallest to the largest.
enum class SwatchSize { s1, s2, s3, s4, s5, s6, s7, s8, s9 };

inline constexpr int swatchSizeCount = 9;

/// The side of a swatch in points, 18 to 50.
[[nodiscard]] constexpr int swatchPoints(SwatchSize size) {
    return 18 + 4 * static_cast<int>(size);
}

/// The side as a label: "30 pt".
[[nodiscard]] inline QString swatchSizeLabel(SwatchSize size) {
    return QStringLiteral("%1 pt").arg(swatchPoints(size));
}

} // namespace dropshade
