// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string_view>

namespace dropshade {

inline constexpr std::size_t shadeCount = 11;

/// From the lightest to the darkest.
inline constexpr std::array<std::string_view, shadeCount> shadeNames = {
    "50", "100", "200", "300", "400", "500", "600", "700", "800", "900", "950",
};

/// One scale of a built-in palette: six lower-case hexadecimal digits after "#" for each shade.
struct ShadeScale {
    std::string_view name;
    std::array<std::string_view, shadeCount> values;
};

/// The published palette of Tailwind CSS, 26 scales.
[[nodiscard]] std::span<const ShadeScale> tailwindScales();

/// The published Harmony palette, the 22 scales that share their names with Tailwind's.
[[nodiscard]] std::span<const ShadeScale> harmonyScales();

} // namespace dropshade
