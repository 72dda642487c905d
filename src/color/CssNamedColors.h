// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string_view>

namespace dropshade {

/// A lower-case name and its six upper-case hexadecimal digits, without a hash.
struct CssNamedColor {
    std::string_view name;
    std::string_view hex;
};

inline constexpr std::size_t cssNamedColorCount = 148;

/// No name has more characters than this.
inline constexpr std::size_t longestCssColorName = 20;

/// The named colours of CSS Color 4, section 6.1, in the order of their names: both spellings of
/// the greys, and no `transparent`, `currentcolor` or system colour.
[[nodiscard]] std::span<const CssNamedColor> cssNamedColors();

/// The digits of the colour with this name, or nothing. The name must be in lower case already.
[[nodiscard]] std::optional<std::string_view> cssNamedColorHex(std::string_view lowerCaseName);

} // namespace dropshade
