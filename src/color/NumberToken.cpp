// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "color/NumberToken.h"

#include <algorithm>
#include <array>
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

// Digits and at most one point, few enough that both the digits and the power of ten below them are
// exact doubles; one division then rounds correctly (Clinger, "How to read floating point numbers
// accurately", 1990). Nearly all numbers in colours are of this kind, and std::from_chars takes
// several times as long for them.
std::optional<double> shortDecimal(std::string_view text) {
    constexpr std::size_t mostCharacters = 16;
    constexpr std::array<double, mostCharacters> powersOfTen = {
        1e0, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
    if (text.empty() || text.size() > mostCharacters)
        return std::nullopt;
    std::int64_t digits = 0;
    std::size_t digitCount = 0;
    std::optional<std::size_t> digitsBeforePoint;
    for (const char character : text) {
        if (character >= '0' && character <= '9') {
            digits = digits * 10 + (character - '0');
            ++digitCount;
        } else if (character == '.' && !digitsBeforePoint) {
            digitsBeforePoint = digitCount;
        } else {
            return std::nullopt;
        }
    }
    if (digitCount == 0 || digitCount == mostCharacters)
        return std::nullopt;
    const std::size_t decimals = digitCount - digitsBeforePoint.value_or(digitCount);
    return static_cast<double>(digits) / powersOfTen[decimals];
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
        // GCC 12's library takes an exponent with two signs, as in "0x1p+-1".
        if (token.find("+-") != std::string_view::npos)
            return std::nullopt;
        magnitude = unsignedNumber(token, hexadecimal);
    } else {
        magnitude = shortDecimal(token);
        if (!magnitude)
            magnitude = unsignedNumber(token, decimal);
    }
    return magnitude && negative ? std::optional(-*magnitude) : magnitude;
}

} // namespace dropshade
