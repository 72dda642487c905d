// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "json/JsonWriter.h"

#include "json/JsonError.h"
#include "json/UuidText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <utility>

namespace dropshade {
namespace {

constexpr char lowerDigits[] = "0123456789abcdef";
constexpr char upperDigits[] = "0123456789ABCDEF";
constexpr qsizetype leastRoom = 256;

constexpr bool needsEscape(char16_t unit) {
    return unit < 0x20 || unit == u'"' || unit == u'\\';
}

constexpr auto asciiEscapes = [] {
    std::array<bool, 0x80> escapes{};
    for (std::size_t unit = 0; unit < escapes.size(); ++unit)
        escapes[unit] = needsEscape(static_cast<char16_t>(unit));
    return escapes;
}();

/// Writes each unit as a byte; false where that isn't the form of the text in JSON.
bool putPlain(const QString& text, char* to) {
    unsigned obstacles = 0;
    for (const QChar character : text) {
        const unsigned unit = character.unicode();
        obstacles |= unit >> 7U | unsigned(asciiEscapes[unit & 0x7FU]);
        *to++ = static_cast<char>(unit);
    }
    return obstacles == 0;
}

/// The two digits of each byte.
constexpr auto byteDigits = [] {
    std::array<std::array<char, 2>, 256> digits{};
    for (std::size_t byte = 0; byte < digits.size(); ++byte)
        digits[byte] = {upperDigits[byte >> 4U], upperDigits[byte & 0xFU]};
    return digits;
}();

/// Writes the digits of a number, the highest first, and gives where they end.
template <typename Number>
char* putHex(Number number, char* to) {
    for (std::size_t byte = sizeof(Number); byte-- > 0;) {
        const auto& digits = byteDigits[(number >> (byte * 8)) & 0xFFU];
        *to++ = digits[0];
        *to++ = digits[1];
    }
    return to;
}

} // namespace

void JsonWriter::reserve(qsizetype size) {
    const qsizetype used = m_at - (m_end - m_bytes.size());
    if (size <= m_bytes.size())
        return;
    m_bytes.resize(size);
    m_at = m_bytes.data() + used;
    m_end = m_bytes.data() + size;
}

QByteArray JsonWriter::text() {
    m_bytes.truncate(m_bytes.size() - (m_end - m_at));
    m_at = nullptr;
    m_end = nullptr;
    m_isSeparatorDue = false;
    return std::exchange(m_bytes, {});
}

void JsonWriter::makeRoom(qsizetype size) {
    const qsizetype needed = m_bytes.size() + size;
    reserve(std::max(needed + needed / 2, leastRoom));
}

void JsonWriter::string(const QString& text) {
    char* to = nextValue(text.size() + 2);
    *to = '"';
    if (putPlain(text, to + 1)) {
        to[1 + text.size()] = '"';
        return;
    }
    m_at = to + 1;
    appendEscaped(text);
    *extend(1) = '"';
}

void JsonWriter::appendEscaped(const QString& text) {
    const QByteArray encoded = text.toUtf8();
    for (const char byte : encoded) {
        const auto unit = static_cast<unsigned char>(byte);
        if (byte == '"' || byte == '\\') {
            char* to = extend(2);
            to[0] = '\\';
            to[1] = byte;
        } else if (needsEscape(unit)) {
            char* to = std::copy_n("\\u00", 4, extend(6));
            to[0] = lowerDigits[unit >> 4U];
            to[1] = lowerDigits[unit & 0xFU];
        } else {
            *extend(1) = byte;
        }
    }
}

void JsonWriter::number(double value) {
    if (!std::isfinite(value))
        throw JsonError("a number that is not finite");
    std::array<char, 32> text{};
    const char* end = std::to_chars(text.data(), text.data() + text.size(), value).ptr;
    std::copy<const char*>(text.data(), end, nextValue(end - text.data()));
}

void JsonWriter::uuid(const QUuid& id) {
    char* to = nextValue(qsizetype(uuidTextLength) + 2);
    *to++ = '"';
    to = putHex(id.data1, to);
    *to++ = '-';
    to = putHex(id.data2, to);
    *to++ = '-';
    to = putHex(id.data3, to);
    *to++ = '-';
    for (std::size_t index = 0; index < std::size(id.data4); ++index) {
        if (index == 2)
            *to++ = '-';
        to = putHex(id.data4[index], to);
    }
    *to = '"';
}

void JsonWriter::open(char bracket) {
    *nextValue(1) = bracket;
    m_isSeparatorDue = false;
}

void JsonWriter::close(char bracket) {
    *extend(1) = bracket;
    m_isSeparatorDue = true;
}

} // namespace dropshade
