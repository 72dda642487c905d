// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "json/JsonWriter.h"

#include "json/JsonError.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>

namespace dropshade {
namespace {

constexpr std::string_view lowerDigits = "0123456789abcdef";
constexpr std::string_view upperDigits = "0123456789ABCDEF";

bool needsEscape(char16_t unit) {
    return unit < 0x20 || unit == u'"' || unit == u'\\';
}

/// True where each unit is the byte of its UTF-8 form.
bool isPlain(const QString& text) {
    for (const QChar character : text) {
        if (character.unicode() >= 0x80 || needsEscape(character.unicode()))
            return false;
    }
    return true;
}

} // namespace

void JsonWriter::key(std::string_view name) {
    separate();
    m_bytes.push_back('"');
    m_bytes += name;
    m_bytes += "\":";
    m_isSeparatorDue = false;
}

void JsonWriter::string(const QString& text) {
    separate();
    m_bytes.push_back('"');
    if (isPlain(text)) {
        const std::size_t begin = m_bytes.size();
        m_bytes.resize(begin + std::size_t(text.size()));
        std::transform(text.cbegin(), text.cend(), m_bytes.begin() + std::ptrdiff_t(begin),
                       [](QChar character) { return static_cast<char>(character.unicode()); });
    } else {
        appendEscaped(text);
    }
    m_bytes.push_back('"');
}

void JsonWriter::appendEscaped(const QString& text) {
    const QByteArray encoded = text.toUtf8();
    for (const char byte : encoded) {
        const auto unit = static_cast<unsigned char>(byte);
        if (byte == '"' || byte == '\\') {
            m_bytes.push_back('\\');
            m_bytes.push_back(byte);
        } else if (needsEscape(unit)) {
            m_bytes += "\\u00";
            m_bytes.push_back(lowerDigits[unit >> 4U]);
            m_bytes.push_back(lowerDigits[unit & 0xFU]);
        } else {
            m_bytes.push_back(byte);
        }
    }
}

void JsonWriter::number(double value) {
    if (!std::isfinite(value))
        throw JsonError("a number that is not finite");
    separate();
    std::array<char, 32> text{};
    const auto end = std::to_chars(text.data(), text.data() + text.size(), value).ptr;
    m_bytes.append(text.data(), end);
}

void JsonWriter::uuid(const QUuid& id) {
    separate();
    m_bytes.push_back('"');
    const QByteArray bytes = id.toRfc4122();
    std::array<char, 36> text{};
    std::size_t at = 0;
    for (qsizetype index = 0; index < bytes.size(); ++index) {
        if (index == 4 || index == 6 || index == 8 || index == 10)
            text[at++] = '-';
        const auto byte = static_cast<unsigned char>(bytes.at(index));
        text[at++] = upperDigits[byte >> 4U];
        text[at++] = upperDigits[byte & 0xFU];
    }
    m_bytes.append(text.data(), text.size());
    m_bytes.push_back('"');
}

void JsonWriter::open(char bracket) {
    separate();
    m_bytes.push_back(bracket);
    m_isSeparatorDue = false;
}

void JsonWriter::close(char bracket) {
    m_bytes.push_back(bracket);
    m_isSeparatorDue = true;
}

void JsonWriter::separate() {
    if (m_isSeparatorDue)
        m_bytes.push_back(',');
    m_isSeparatorDue = true;
}

} // namespace dropshade
