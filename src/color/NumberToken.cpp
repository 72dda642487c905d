// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "color/NumberToken.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <system_error>

namespace dropshade {

namespace {

struct Radix {
    std::chars_format format;
    std::string_view exponentMarks;
    std::int64_t exponentPerDigit;
};

constexpr Radix decimal = {std::chars_format::general, "eE", 1};
constexpr Radix hexadecimal = {std::chars_format::hex, "pP", 4};

std::int64_t saturatedExponent(std::string_view digits) {
    constexpr std::int64_t limit = std::numeric_limits<std::int64_t>::max() / 100;
    const bool negative = digits.starts_with('-');
    std::int64_t exponent = 0;
    for (const char digit : digits) {
        if (digit >= '0' && digit <= '9' && exponent < limit)
            exponent = exponent * 10 + (digit - '0');
    }
    return negative ? -exponent : exponent;
}

// std::from_chars tells only that a number doesn't fit, not whether it is too large or too small.
// Such a number is so far from 1 that the position of its first digit decides.
bool isAboveOne(std::string_view number, const Radix& radix) {
    const std::size_t mark = std::min(number.find_first_of(radix.exponentMarks), number.size());
    const std::string_view mantissa = number.substr(0, mark);
    const auto point = static_cast<std::int64_t>(std::min(mantissa.find('.'), mantissa.size()));
    const auto firstDigit = static_cast<std::int64_t>(mantissa.find_first_not_of("0."));
    const std::int64_t exponent =
        mark < number.size() ? saturatedExponent(number.substr(mark + 1)) : 0;
    return (point - firstDigit) * radix.exponentPerDigit + exponent > 0;
}

std::optional<double> unsignedNumber(std::string_view text, const Radix& radix) {
    double value = 0.0;
    const char* const end = text.data() + text.size();
    const auto [rest, error] = std::from_chars(text.data(), end, value, radix.format);
    if (rest != end || error == std::errc::invalid_argument)
        return std::nullopt;
    if (error == std::errc::result_out_of_range)
        return isAboveOne(text, radix) ? std::numeric_limits<double>::infinity() : 0.0;
    return std::isnan(value) ? std::nullopt : std::optional(value);
}

} // namespace

std::optional<double> numberFromToken(std::string_view token) {
    const bool negative = token.starts_with('-');
    if (negative || token.starts_with('+'))
        token.remove_prefix(1);
    // std::from_chars would take a second minus sign.
    if (token.empty() || token.front() == '-')
        return std::nullopt;

    std::optional<double> magnitude;
    if (token.starts_with("0x") || token.starts_with("0X")) {
        token.remove_prefix(2);
        // Behind "0x" std::from_chars would still take a sign, "inf" and "nan".
        constexpr std::string_view hexadecimalStart = ".0123456789abcdefABCDEF";
        if (token.empty() || hexadecimalStart.find(token.front()) == std::string_view::npos)
            return std::nullopt;
        magnitude = unsignedNumber(token, hexadecimal);
    } else {
        magnitude = unsignedNumber(token, decimal);
    }
    return magnitude && negative ? std::optional(-*magnitude) : magnitude;
}

} // namespace dropshade
