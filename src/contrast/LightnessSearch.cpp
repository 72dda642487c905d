// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "contrast/LightnessSearch.h"

#include "color/ColorConversions.h"

#include <algorithm>
#include <cmath>

namespace dropshade {

namespace {

constexpr int bisectionRounds = 60;
constexpr double walkStep = 0.001;
constexpr int walkLength = 50;

double hueFraction(double red, double green, double blue, double max, double range) {
    if (max == red)
        return ((green - blue) / range + (green < blue ? 6.0 : 0.0)) / 6.0;
    if (max == green)
        return ((blue - red) / range + 2.0) / 6.0;
    return ((red - green) / range + 4.0) / 6.0;
}

/// The lightnesses of one hue, saturation and alpha, and the test that they must pass.
class LightnessSearch {
public:
    LightnessSearch(const SRGBColor& moved, const ColorTest& passes)
        : m_start(rgbToHsl(moved.red(), moved.green(), moved.blue())), m_alpha(moved.alpha()),
          m_passes(passes) {}

    double start() const { return m_start.lightness; }

    SRGBColor candidate(double lightness) const {
        return hslToRgb(m_start.hue, m_start.saturation, lightness, m_alpha);
    }

    bool passes(double lightness) const { return m_passes(candidate(lightness)); }

    std::optional<double> toward(double end) const {
        if (!passes(end))
            return std::nullopt;
        double good = end;
        double bad = start();
        for (int round = 0; round < bisectionRounds; ++round) {
            const double middle = (good + bad) * 0.5;
            (passes(middle) ? good : bad) = middle;
        }
        return passes(good) ? std::optional(good) : walk(good, end);
    }

private:
    // `good` has passed before; this is for a test that changes its mind.
    std::optional<double> walk(double good, double end) const {
        const double step = start() < end ? walkStep : -walkStep;
        for (int count = 1; count <= walkLength; ++count) {
            const double lightness = good + step * count;
            if (lightness < 0.0 || lightness > 1.0)
                return std::nullopt;
            if (passes(lightness))
                return lightness;
        }
        return std::nullopt;
    }

    HSLFractions m_start;
    double m_alpha;
    const ColorTest& m_passes;
};

std::optional<double> nearer(std::optional<double> dark, std::optional<double> light,
                             double start) {
    if (!dark || !light)
        return dark ? dark : light;
    return std::abs(*light - start) < std::abs(*dark - start) ? light : dark;
}

} // namespace

HSLFractions rgbToHsl(double red, double green, double blue) {
    const double max = std::max({red, green, blue});
    const double min = std::min({red, green, blue});
    const double lightness = (max + min) * 0.5;
    if (max == min)
        return {0.0, 0.0, lightness};
    const double range = max - min;
    return {hueFraction(red, green, blue, max, range),
            range / (lightness > 0.5 ? 2.0 - max - min : max + min), lightness};
}

SRGBColor hslToRgb(double hue, double saturation, double lightness, double alpha) {
    return hslToSRGB(hue, saturation, std::clamp(lightness, 0.0, 1.0), alpha);
}

std::optional<SRGBColor> withNearestPassingLightness(const SRGBColor& moved,
                                                     const ColorTest& passes) {
    const LightnessSearch search(moved, passes);
    const auto dark = search.toward(0.0);
    const auto light = search.toward(1.0);
    const auto chosen = nearer(dark, light, search.start());
    if (!chosen)
        return std::nullopt;
    const SRGBColor color = search.candidate(*chosen);
    return passes(color) ? std::optional(color) : std::nullopt;
}

} // namespace dropshade
