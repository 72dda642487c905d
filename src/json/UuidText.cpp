// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "json/UuidText.h"

#include <array>
#include <cstddef>

namespace dropshade {
namespace {

constexpr std::size_t byteCount = 16;

/// Where the digits of each byte begin, with a hyphen before some.
constexpr std::array<std::size_t, byteCount> bytePlaces = {0,  2,  4,  6,  9,  11, 14, 16,
                                                           19, 21, 24, 26, 28, 30, 32, 34};
constexpr std::array<std::size_t, 4> hyphenPlaces = {8, 13, 18, 23};

/// The value of each character as a digit, or −1.
constexpr auto digitValues = [] {
    std::array<signed char, 256> values{};
    values.fill(-1);
    for (int digit = 0; digit < 10; ++digit)
        values[std::size_t('0' + digit)] = static_cast<signed char>(digit);
    for (int digit = 10; digit < 16; ++digit) {
        values[std::size_t('A' + digit - 10)] = static_cast<signed char>(digit);
        values[std::size_t('a' + digit - 10)] = static_cast<signed char>(digit);
    }
    return values;
}();

int hexDigit(char character) {
    return digitValues[static_cast<unsigned char>(character)];
}

} // namespace

QString uuidText(const QUuid& id) {
    return id.toString(QUuid::WithoutBraces).toUpper();
}

std::optional<QUuid> uuidFromText(std::string_view text) {
    if (text.size() != uuidTextLength)
        return std::nullopt;
    const char* characters = text.data();
    bool isGood = true;
    for (const std::size_t place : hyphenPlaces)
        isGood &= characters[place] == '-';
    std::array<unsigned char, byteCount> bytes{};
    int allDigits = 0;
    for (std::size_t index = 0; index < byteCount; ++index) {
        const int high = hexDigit(characters[bytePlaces[index]]);
        const int low = hexDigit(characters[bytePlaces[index] + 1]);
        // What is no digit is negative, and stays so in here.
        allDigits |= high | low;
        bytes[index] = static_cast<unsigned char>(high * 16 + low);
    }
    if (!isGood || allDigits < 0)
        return std::nullopt;
    const auto pair = [&bytes](std::size_t at) {
        return static_cast<ushort>((bytes[at] << 8U) | bytes[at + 1]);
    };
    const uint first = (uint(pair(0)) << 16U) | pair(2);
    return QUuid(first, pair(4), pair(6), bytes[8], bytes[9], bytes[10], bytes[11], bytes[12],
                 bytes[13], bytes[14], bytes[15]);
}

std::optional<QUuid> uuidFromText(const QString& text) {
    // A character outside Latin-1 becomes one that no id has.
    const QByteArray latin = text.toLatin1();
    return uuidFromText(std::string_view(latin.constData(), std::size_t(latin.size())));
}

} // namespace dropshade
