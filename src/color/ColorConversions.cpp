// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "color/ColorConversions.h"

#include <algorithm>
#include <cmath>

namespace dropshade {

namespace {

// A channel that is a hair below red's would round the hue up to the full turn, which is 0.
const double lastHueDegrees = std::nextafter(360.0, 0.0);

std::int64_t byteOf(double component) {
    return static_cast<std::int64_t>(std::round(component * 255.0));
}

} // namespace

RGBA8 rgba255(const SRGBColor& color) {
    return {byteOf(color.red()), byteOf(color.green()), byteOf(color.blue()),
            byteOf(color.alpha())};
}

HSLComponents hslComponents(double red, double green, double blue) {
    const double max = std::max({red, green, blue});
    const double min = std::min({red, green, blue});
    const double sum = max + min;
    const double lightness = sum * 0.5;
    if (max == min)
        return {0.0, 0.0, lightness};

    const double range = max - min;
    const double saturation = lightness > 0.5 ? range / (2.0 - max - min) : range / sum;
    double sextant = 0.0;
    if (max == red)
        sextant = (green - blue) / range + (green < blue ? 6.0 : 0.0);
    else if (max == green)
        sextant = (blue - red) / range + 2.0;
    else
        sextant = (red - green) / range + 4.0;
    return {std::min(sextant * 60.0, lastHueDegrees), saturation, lightness};
}

double hueChannel(double p, double q, double t) {
    if (t < 0.0)
        t += 1.0;
    if (t > 1.0)
        t -= 1.0;
    if (t < 1.0 / 6.0)
        return p + (q - p) * 6.0 * t;
    if (t < 1.0 / 2.0)
        return q;
    if (t < 2.0 / 3.0)
        return p + (q - p) * (2.0 / 3.0 - t) * 6.0;
    return p;
}

RGBChannels hslChannels(double hue, double saturation, double lightness) {
    if (saturation == 0.0)
        return {lightness, lightness, lightness};
    const double q = lightness < 0.5 ? (1.0 + saturation) * lightness
                                     : lightness + saturation - lightness * saturation;
    const double p = 2.0 * lightness - q;
    return {hueChannel(p, q, hue + 1.0 / 3.0), hueChannel(p, q, hue),
            hueChannel(p, q, hue - 1.0 / 3.0)};
}

SRGBColor hslToSRGB(double hue, double saturation, double lightness, double alpha) {
    const RGBChannels channels = hslChannels(hue, saturation, lightness);
    return {channels.red, channels.green, channels.blue, alpha};
}

HSBComponents hsbComponents(const SRGBColor& color) {
    const double max = std::max({color.red(), color.green(), color.blue()});
    const double min = std::min({color.red(), color.green(), color.blue()});
    const double hueDegrees = hslComponents(color.red(), color.green(), color.blue()).hue;
    return {hueDegrees / 360.0, max == 0.0 ? 0.0 : (max - min) / max, max, color.alpha()};
}

SRGBColor hsbToSRGB(double hue, double saturation, double brightness, double alpha) {
    const double turn = (hue - std::floor(hue)) * 6.0;
    const double sector = std::floor(turn);
    const double fraction = turn - sector;
    const double low = brightness * (1.0 - saturation);
    const double falling = brightness * (1.0 - saturation * fraction);
    const double rising = brightness * (1.0 - saturation * (1.0 - fraction));
    switch (static_cast<int>(sector)) {
    case 1:
        return {falling, brightness, low, alpha};
    case 2:
        return {low, brightness, rising, alpha};
    case 3:
        return {low, falling, brightness, alpha};
    case 4:
        return {rising, low, brightness, alpha};
    case 5:
        return {brightness, low, falling, alpha};
    default:
        return {brightness, rising, low, alpha};
    }
}

} // namespace dropshade
