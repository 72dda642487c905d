// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "interchange/LegacyColor.h"

#include "interchange/ColorConverter.h"
#include "interchange/ColorSpaces.h"

#include <algorithm>
#include <cmath>

namespace dropshade {
namespace {

std::size_t componentCount(LegacySpace space) {
    switch (space) {
    case LegacySpace::calibratedRGB:
    case LegacySpace::deviceRGB:
        return 3;
    case LegacySpace::calibratedWhite:
    case LegacySpace::deviceWhite:
        return 1;
    case LegacySpace::deviceCMYK:
        return 4;
    case LegacySpace::named:
        break;
    }
    return 0;
}

} // namespace

std::optional<SRGBColor> legacyColor(std::int64_t space, std::span<const double> numbers,
                                     ColorConverter& converter) {
    const auto known = static_cast<LegacySpace>(space);
    const std::size_t count = componentCount(known);
    if (count == 0 || (numbers.size() != count && numbers.size() != count + 1) ||
        !std::ranges::all_of(numbers, [](double number) { return std::isfinite(number); }))
        return std::nullopt;
    const double alpha = numbers.size() > count ? numbers[count] : 1.0;
    RGBChannels color;
    if (count == 1) {
        color = {numbers[0], numbers[0], numbers[0]};
    } else if (count == 4) {
        const SRGBColor ink = converter.fromCmyk(numbers[0], numbers[1], numbers[2], numbers[3]);
        color = {ink.red(), ink.green(), ink.blue()};
    } else {
        color =
            sRGBFrom(known == LegacySpace::calibratedRGB ? RgbSpace::genericRGB : RgbSpace::sRGB,
                     {numbers[0], numbers[1], numbers[2]});
    }
    return SRGBColor(color.red, color.green, color.blue, alpha);
}

} // namespace dropshade
