// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "contrast/ContrastMetrics.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

namespace dropshade {

namespace {

constexpr double byteMaximum = 255.0;

double computedLinearChannel(double component) {
    if (component <= 0.04045)
        return component / 12.92;
    return std::pow((component + 0.055) / 1.055, 2.4);
}

/// What `computedLinearChannel` gives for each byte.
std::array<double, 256> linearBytes() {
    std::array<double, 256> values{};
    for (std::size_t byte = 0; byte < values.size(); ++byte)
        values[byte] = computedLinearChannel(double(byte) / byteMaximum);
    return values;
}

double linearChannel(double component) {
    // Most colours come from hexadecimal digits, a library holds thousands, and powers are slow.
    static const std::array<double, 256> ofBytes = linearBytes();
    const double scaled = component * byteMaximum;
    if (scaled >= 0.0 && scaled <= byteMaximum) {
        const auto byte = static_cast<std::size_t>(scaled + 0.5);
        if (double(byte) / byteMaximum == component)
            return ofBytes[byte];
    }
    return computedLinearChannel(component);
}

double apcaChannel(double component) {
    return std::pow(std::clamp(component, 0.0, 1.0), 2.4);
}

double softClampedBlack(double luminance) {
    constexpr double threshold = 0.022;
    if (luminance < threshold)
        return luminance + std::pow(threshold - luminance, 1.414);
    return luminance;
}

} // namespace

double relativeLuminance(double red, double green, double blue) {
    return linearChannel(red) * 0.2126 + linearChannel(green) * 0.7152 +
           linearChannel(blue) * 0.0722;
}

double relativeLuminance(const SRGBColor& color) {
    return relativeLuminance(color.red(), color.green(), color.blue());
}

double contrastRatioOfLuminances(double first, double second) {
    return (std::max(first, second) + 0.05) / (std::min(first, second) + 0.05);
}

double contrastRatio(const SRGBColor& first, const SRGBColor& second) {
    return contrastRatioOfLuminances(relativeLuminance(first), relativeLuminance(second));
}

double apcaLuminance(double red, double green, double blue) {
    return apcaChannel(red) * 0.2126729 + apcaChannel(green) * 0.7151522 +
           apcaChannel(blue) * 0.072175;
}

double apcaLuminance(const SRGBColor& color) {
    return apcaLuminance(color.red(), color.green(), color.blue());
}

double apcaLc(double textY, double backgroundY) {
    constexpr double smallestDifference = 0.0005;
    constexpr double scale = 1.14;
    constexpr double smallestContrast = 0.1;
    constexpr double offset = 0.027;

    const double text = softClampedBlack(textY);
    const double background = softClampedBlack(backgroundY);
    if (std::abs(text - background) < smallestDifference)
        return 0.0;
    if (text < background) {
        const double contrast = (std::pow(background, 0.56) - std::pow(text, 0.57)) * scale;
        return contrast < smallestContrast ? 0.0 : (contrast - offset) * 100.0;
    }
    const double contrast = (std::pow(background, 0.65) - std::pow(text, 0.62)) * scale;
    return contrast > -smallestContrast ? 0.0 : (contrast + offset) * 100.0;
}

bool isLargeText(double pointSize, double weight) {
    return pointSize >= 18.0 || (pointSize >= 14.0 && weight >= fontWeight::bold);
}

WCAGThresholds wcagThresholds(double pointSize, double weight) {
    return isLargeText(pointSize, weight) ? WCAGThresholds{3.0, 4.5} : WCAGThresholds{4.5, 7.0};
}

bool passesRatio(double ratio, double minimum) {
    return minimum <= ratio;
}

bool passesLc(double lc, double minimum) {
    return minimum <= std::abs(lc);
}

bool prefersLightInk(const SRGBColor& color) {
    // Asked for every swatch of a library: the two inks need no measuring.
    const double luminance = relativeLuminance(color);
    return contrastRatioOfLuminances(luminance, 0.0) < contrastRatioOfLuminances(luminance, 1.0);
}

} // namespace dropshade
