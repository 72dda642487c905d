// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "json/UuidText.h"

#include <array>
#include <cstddef>

namespace dropshade {
namespace {

constexpr std::size_t textLength = 36;
constexpr std::size_t byteCount = 16;

constexpr bool isHyphenPlace(std::size_t index) {
    return index == 8 || index == 13 || index == 18 || index == 23;
}

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
    if (text.size() != textLength)
        return std::nullopt;
    std::array<unsigned char, byteCount> bytes{};
    std::size_t byte = 0;
    for (std::size_t index = 0; index < textLength;) {
        if (isHyphenPlace(index)) {
            if (text[index++] != '-')
                return std::nullopt;
            continue;
        }
        const int high = hexDigit(text[index]);
        const int low = hexDigit(text[index + 1]);
        if (high < 0 || low < 0)
            return std::nullopt;
        bytes[byte++] = static_cast<unsigned char>(high * 16 + low);
        index += 2;
    }
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
