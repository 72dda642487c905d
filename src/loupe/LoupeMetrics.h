// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

/// The measures of the loupe in logical pixels.
namespace dropshade::loupe {

inline constexpr double discDiameter = 156.0;
inline constexpr double edgeWidth = 1.0;
inline constexpr double ringWidth = 2.5;
/// Of the whole ring: half of the inner edge lies on the disc.
inline constexpr double outerRadius = discDiameter / 2.0 + edgeWidth / 2.0 + ringWidth + edgeWidth;

inline constexpr double tickLength = 6.0;
inline constexpr double tickWidth = 1.5;
inline constexpr double tickInset = 3.0;
inline constexpr double tickHalo = 1.0;

inline constexpr double frameWidth = 1.5;
inline constexpr double frameEdge = 1.0;
inline constexpr double smallestGridCell = 8.0;

inline constexpr double plateHeight = 32.0;
inline constexpr double plateGap = 8.0;
inline constexpr double platePadding = 7.0;
inline constexpr double plateSwatch = 18.0;
inline constexpr double plateTextGap = 8.0;
inline constexpr double plateTextMargin = 12.0;
inline constexpr double plateRadius = 6.0;
inline constexpr double plateSwatchRadius = 4.0;
inline constexpr double plateEdge = 1.0;
inline constexpr double screenMargin = 8.0;

inline constexpr double shadowOffset = 8.0;
inline constexpr double shadowBlur = 24.0;

} // namespace dropshade::loupe
