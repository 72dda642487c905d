// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "imagepalette/ImageQuantizer.h"

#include <algorithm>
#include <cmath>
#include <random>
#include <utility>

namespace dropshade {

SRGBColor colorOf(const QuantizedColor& color) {
    return {color.r / 255.0, color.g / 255.0, color.b / 255.0, 1.0};
}

} // namespace dropshade

namespace dropshade::ImageQuantizer {

namespace {

double lightnessOf(const QuantizedColor& color) {
    const double max = std::max({color.r, color.g, color.b}) / 255.0;
    const double min = std::min({color.r, color.g, color.b}) / 255.0;
    return (max + min) * 0.5;
}

double hueDegreesOf(const QuantizedColor& color) {
    const double red = color.r / 255.0;
    const double green = color.g / 255.0;
    const double blue = color.b / 255.0;
    const double max = std::max({red, green, blue});
    const double delta = max - std::min({red, green, blue});
    if (delta == 0.0)
        return 0.0;
    double sextant = 0.0;
    if (max == red)
        sextant = std::fmod((green - blue) / delta, 6.0);
    else if (max == green)
        sextant = (blue - red) / delta + 2.0;
    else
        sextant = (red - green) / delta + 4.0;
    const double degrees = sextant * 60.0;
    return degrees < 0.0 ? degrees + 360.0 : degrees;
}

double ascendingKey(const QuantizedColor& color, SwatchSortOrder order) {
    switch (order) {
    case SwatchSortOrder::frequency:
        return -static_cast<double>(color.count);
    case SwatchSortOrder::hue:
        return hueDegreesOf(color);
    case SwatchSortOrder::lightToDark:
        return -lightnessOf(color);
    case SwatchSortOrder::darkToLight:
        return lightnessOf(color);
    }
    return 0.0;
}

} // namespace

RandomBits systemRandomBits() {
    return [device = std::make_shared<std::random_device>()] {
        const std::uint64_t high = (*device)();
        return high << 32 | (*device)();
    };
}

std::vector<QuantizedColor> sorted(std::span<const QuantizedColor> colors, SwatchSortOrder order) {
    std::vector<QuantizedColor> result(colors.begin(), colors.end());
    std::stable_sort(result.begin(), result.end(),
                     [order](const QuantizedColor& first, const QuantizedColor& second) {
                         return ascendingKey(first, order) < ascendingKey(second, order);
                     });
    return result;
}

} // namespace dropshade::ImageQuantizer
