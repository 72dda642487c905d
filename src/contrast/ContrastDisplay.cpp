// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "contrast/ContrastDisplay.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace dropshade {

namespace {

// Not printf: the program's locale may have a comma for the decimal point.
std::string fixed(double value, int decimals) {
    // Sign, the longest whole part of a double, point, decimals.
    std::array<char, std::numeric_limits<double>::max_exponent10 + 16> text{};
    const auto result = std::to_chars(text.data(), text.data() + text.size(), value,
                                      std::chars_format::fixed, decimals);
    return {text.data(), result.ptr};
}

std::string wholeOrFixed(double value, int decimals) {
    return fixed(value, std::round(value) == value ? 0 : decimals);
}

} // namespace

std::string formatRatio(double ratio) {
    return wholeOrFixed(ratio, 2) + ":1";
}

std::string formatRatioNumber(double ratio) {
    return fixed(ratio, 2);
}

std::string formatLc(double lc) {
    // A negative fraction cuts to minus zero, which the sum makes plain.
    return "Lc " + fixed(std::trunc(lc) + 0.0, 0);
}

int wholeLcMagnitude(double lc) {
    return static_cast<int>(std::abs(lc));
}

std::string formatThreshold(double minimum) {
    return wholeOrFixed(minimum, 1);
}

} // namespace dropshade
