// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "color/SRGBColor.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace dropshade {

/// The formats that a colour can be written in, in the order in which every list shows them.
enum class ColorFormat : std::uint8_t {
    hex,
    hexa,
    cssRGB,
    cssRGBA,
    cssHSL,
    cssHSLA,
    nsColorRGB,
    nsColorHSB,
    uiColorRGB,
    uiColorHSB,
    swiftUIColorRGB,
    swiftUIColorHSB,
    colorLiteral,
    objcNSColorRGB,
    objcUIColorRGB,
    dotNetRGB,
    dotNetARGB,
    javaRGB,
    javaRGBA,
    androidRGB,
    androidARGB,
};

inline constexpr std::size_t colorFormatCount = 21;

/// Formats that a list shows together under one title.
struct ColorFormatGroup {
    std::string_view title;
    std::span<const ColorFormat> formats;
};

struct FormatOptions {
    /// A "#" in front of the digits of `hex` and `hexa`.
    bool useHashPrefix = true;
    /// The digits of `hex` and `hexa` in lower case.
    bool useLowercase = false;
    /// 2, 3 or 4 behind the point of each fraction, that is, from `nsColorRGB` to `objcUIColorRGB`.
    /// Any number is safe: it is pinned into 0 to 17.
    int decimalPlaces = 2;

    friend constexpr bool operator==(const FormatOptions&, const FormatOptions&) = default;
};

/// The text that a setting stores for the format: the name of the case.
[[nodiscard]] std::string_view rawValue(ColorFormat format);

/// The format with exactly this raw value, or nothing.
[[nodiscard]] std::optional<ColorFormat> colorFormatFromRawValue(std::string_view rawValue);

/// The format's proper name, the same in every language.
[[nodiscard]] std::string_view displayName(ColorFormat format);

/// Eight groups that hold each format once, both in the order of `ColorFormat`.
[[nodiscard]] std::span<const ColorFormatGroup> formatGroups();

/// The colour's text in the format. A format without an alpha drops it. Numbers have a full stop in
/// every locale; fractions round like `printf`, the exact binary value to nearest.
[[nodiscard]] std::string formatted(const SRGBColor& color, ColorFormat format,
                                    const FormatOptions& options);

/// An alpha from 0 to 1 as CSS text with at most two decimals, one last "0" cut off: 0.5 gives
/// "0.5". Exactly 1 gives "1" and exactly 0 "0"; what merely rounds to them gives "1.0" and "0.0".
[[nodiscard]] std::string alphaText(double alpha);

/// A fraction from 0 to 1 as a percentage with at most one decimal, and none if that is 0: 0.5
/// gives "50%", 0.1234 "12.3%". Halves of a tenth of a percent round away from zero.
[[nodiscard]] std::string percentText(double fraction);

} // namespace dropshade
