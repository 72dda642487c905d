// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "ColorSelector/SelectorFields.h"

#include <algorithm>
#include <cmath>

namespace dropshade {

namespace {

constexpr double matchingDistance = 0.001;

bool differs(double first, double second, double deadBand) {
    return std::abs(first - second) > deadBand;
}

bool hueDiffers(double first, double second, double deadBand) {
    const double distance = std::abs(first - second);
    return std::min(distance, 1.0 - distance) > deadBand;
}

} // namespace

HSBComponents followingColor(const HSBComponents& fields, const SRGBColor& color, double deadBand) {
    const HSBComponents read = hsbComponents(color);
    const bool hasHue = read.saturation > 0.0 && read.brightness > 0.0;
    const bool hasSaturation = read.brightness > 0.0;
    HSBComponents result = fields;
    if (hasHue && hueDiffers(fields.hue, read.hue, deadBand))
        result.hue = read.hue;
    if (hasSaturation && differs(fields.saturation, read.saturation, deadBand))
        result.saturation = read.saturation;
    if (differs(fields.brightness, read.brightness, deadBand))
        result.brightness = read.brightness;
    if (differs(fields.alpha, read.alpha, deadBand))
        result.alpha = read.alpha;
    return result;
}

bool nearlyMatch(const SRGBColor& first, const SRGBColor& second) {
    const auto isNear = [](double a, double b) { return std::abs(a - b) < matchingDistance; };
    return isNear(first.red(), second.red()) && isNear(first.green(), second.green()) &&
           isNear(first.blue(), second.blue()) && isNear(first.alpha(), second.alpha());
}

} // namespace dropshade
