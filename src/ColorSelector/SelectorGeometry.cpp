// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "ColorSelector/SelectorGeometry.h"

#include <algorithm>
#include <cmath>

namespace dropshade::selector {

namespace {

double share(double place, double length) {
    const double value = place / length;
    // A track of no length has no places; not-a-number falls to 0.
    return value > 0.0 ? std::min(value, 1.0) : 0.0;
}

} // namespace

double barValue(double place, double length) {
    return share(place, length);
}

double barThumb(double value, double length, double thumb) {
    const double half = thumb / 2.0;
    return std::min(std::max(value * length, half), length - half);
}

SquareValue squareValue(double x, double y, double width, double height) {
    return {share(x, width), 1.0 - share(y, height)};
}

Place squareThumb(const SquareValue& value, double width, double height) {
    return {value.saturation * width, (1.0 - value.brightness) * height};
}

double stepped(double value, double change) {
    constexpr double hundredths = 100.0;
    constexpr double tiny = 1e-9;
    const double moved = (value + change) * hundredths;
    const double whole = change > 0.0 ? std::floor(moved + tiny) : std::ceil(moved - tiny);
    return std::clamp(whole / hundredths, 0.0, 1.0);
}

} // namespace dropshade::selector
