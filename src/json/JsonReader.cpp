// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "json/JsonReader.h"

#include "json/UuidText.h"

#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <locale>
#include <sstream>
#include <string>

namespace dropshade {
namespace {

constexpr int mostDepth = 512;
constexpr char32_t replacement = 0xFFFD;

bool isDigit(char character) {
    return character >= '0' && character <= '9';
}

bool isWhiteSpace(char character) {
    return character == ' ' || character == '\t' || character == '\r' || character == '\n';
}

/// Whether a byte of a string stands for itself.
bool isPlain(char byte) {
    return byte != '"' && byte != '\\' && static_cast<unsigned char>(byte) >= 0x20;
}

/// The first of the bytes from `at` to `end` that doesn't stand for itself, or `end`.
const char* plainEnd(const char* at, const char* end) {
    // Eight bytes at a time: the top bit of each that is below 0x20, a quote or a backslash is set,
    // and perhaps those of higher bytes.
    constexpr std::uint64_t ones = 0x0101010101010101;
    for (; end - at >= 8; at += 8) {
        std::uint64_t bytes = 0;
        std::memcpy(&bytes, at, sizeof bytes);
        const std::uint64_t quotes = bytes ^ ('"' * ones);
        const std::uint64_t backslashes = bytes ^ ('\\' * ones);
        const std::uint64_t found =
            (((bytes - 0x20 * ones) & ~bytes) | ((quotes - ones) & ~quotes) |
             ((backslashes - ones) & ~backslashes)) &
            (0x80 * ones);
        if (found == 0)
            continue;
        if constexpr (std::endian::native == std::endian::little)
            return at + std::countr_zero(found) / 8;
        break;
    }
    while (at != end && isPlain(*at))
        ++at;
    return at;
}

/// What UTF-8 bytes say that don't begin with a mark of the byte order.
QString textOf(std::string_view bytes) {
    // Most texts are short and of ASCII: a loop of a few steps is done before Qt has begun.
    constexpr std::size_t shortLength = 32;
    const auto size = static_cast<qsizetype>(bytes.size());
    if (bytes.empty() || bytes.size() > shortLength)
        return QString::fromUtf8(bytes.data(), size);
    QString text(size, Qt::Uninitialized);
    QChar* to = text.data();
    unsigned allBits = 0;
    for (const char byte : bytes) {
        allBits |= static_cast<unsigned char>(byte);
        *to++ = QLatin1Char(byte);
    }
    return allBits < 0x80 ? text : QString::fromUtf8(bytes.data(), size);
}

bool isHighSurrogate(char32_t unit) {
    return unit >= 0xD800 && unit < 0xDC00;
}

bool isLowSurrogate(char32_t unit) {
    return unit >= 0xDC00 && unit < 0xE000;
}

void appendUtf8(QByteArray& bytes, char32_t character) {
    bytes.append(QStringView(QChar::fromUcs4(character)).toUtf8());
}

} // namespace

JsonReader::JsonReader(const QByteArray& text)
    : m_owner(text), m_at(m_owner.constData()), m_end(m_at + m_owner.size()) {
    if (!m_owner.isValidUtf8())
        throw JsonError("not UTF-8");
}

QString JsonReader::string() {
    QByteArray unescaped;
    std::string_view bytes = stringBytes(unescaped);
    // Qt takes a mark in front for one of the byte order; in here it is a character of the text.
    constexpr std::string_view mark = "\xEF\xBB\xBF";
    if (bytes.substr(0, mark.size()) != mark)
        return textOf(bytes);
    QString marks;
    for (; bytes.substr(0, mark.size()) == mark; bytes.remove_prefix(mark.size()))
        marks += QChar(QChar::ByteOrderMark);
    return marks + QString::fromUtf8(bytes.data(), static_cast<qsizetype>(bytes.size()));
}

QUuid JsonReader::uuid() {
    // Digits and hyphens need no look at what a string may hold besides.
    constexpr std::size_t quotedLength = uuidTextLength + 2;
    if (peek() == '"' && rest().size() >= quotedLength && m_at[quotedLength - 1] == '"') {
        if (const auto id = uuidFromText({m_at + 1, uuidTextLength})) {
            m_at += quotedLength;
            return *id;
        }
    }
    QByteArray unescaped;
    const auto id = uuidFromText(stringBytes(unescaped));
    if (!id)
        throw JsonError("no id");
    return *id;
}

double JsonReader::number() {
    const std::string_view text = numberText();
    double value = 0.0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
    if (result.ec == std::errc())
        return value;
    // Out of range, which means too large or too small; a stream tells the two apart.
    std::istringstream stream{std::string(text)};
    stream.imbue(std::locale::classic());
    stream >> value;
    if (std::abs(value) > 1.0)
        throw JsonError("a number out of range");
    return std::copysign(0.0, text.front() == '-' ? -1.0 : 1.0);
}

bool JsonReader::boolean() {
    const bool value = peek() == 't';
    takeWord(value ? "true" : "false");
    return value;
}

bool JsonReader::null() {
    return peek() == 'n' && takeWord("null");
}

void JsonReader::skip() {
    switch (peek()) {
    case '{':
        return object([this](std::string_view) { skip(); });
    case '[':
        return array([this] { skip(); });
    case '"':
        return static_cast<void>(string());
    case 't':
        return static_cast<void>(takeWord("true"));
    case 'f':
        return static_cast<void>(takeWord("false"));
    case 'n':
        return static_cast<void>(takeWord("null"));
    default:
        return static_cast<void>(numberText());
    }
}

void JsonReader::end() {
    skipWhiteSpace();
    if (m_at != m_end)
        throw JsonError("more than one value");
}

void JsonReader::enter(char bracket) {
    expect(bracket);
    if (++m_depth > mostDepth)
        throw JsonError("nested too deep");
}

void JsonReader::skipWhiteSpace() {
    while (m_at != m_end && isWhiteSpace(*m_at))
        ++m_at;
}

bool JsonReader::takeWord(std::string_view word) {
    if (!rest().starts_with(word))
        throw JsonError("an unknown word");
    m_at += word.size();
    return true;
}

std::string_view JsonReader::stringBytes(QByteArray& unescaped) {
    expect('"');
    const char* begin = m_at;
    m_at = plainEnd(begin, m_end);
    if (m_at != m_end && *m_at == '"')
        return {begin, static_cast<std::size_t>(m_at++ - begin)};
    // An end that isn't there, or a control character, is for `unescape` to find.
    unescaped = unescape(begin);
    return {unescaped.constData(), std::size_t(unescaped.size())};
}

QByteArray JsonReader::unescape(const char* begin) {
    QByteArray bytes(begin, static_cast<qsizetype>(m_at - begin));
    while (m_at != m_end) {
        const char byte = *m_at++;
        if (byte == '"')
            return bytes;
        if (static_cast<unsigned char>(byte) < 0x20)
            break;
        if (byte == '\\')
            appendEscape(bytes);
        else
            bytes.append(byte);
    }
    throw JsonError("a string without its end");
}

void JsonReader::appendEscape(QByteArray& bytes) {
    constexpr std::string_view names = "\"\\/bfnrt";
    constexpr std::string_view meanings = "\"\\/\b\f\n\r\t";
    const char name = m_at != m_end ? *m_at++ : '\0';
    if (name != 'u') {
        const auto index = name == '\0' ? std::string_view::npos : names.find(name);
        if (index == std::string_view::npos)
            throw JsonError("an unknown escape");
        bytes.append(meanings[index]);
        return;
    }
    const char32_t unit = escapedUnit();
    if (isHighSurrogate(unit) && rest().starts_with("\\u")) {
        const char* second = m_at;
        m_at += 2;
        const char32_t low = escapedUnit();
        if (isLowSurrogate(low))
            return appendUtf8(bytes, 0x10000 + ((unit - 0xD800) << 10U) + (low - 0xDC00));
        m_at = second;
    }
    appendUtf8(bytes, isHighSurrogate(unit) || isLowSurrogate(unit) ? replacement : unit);
}

char32_t JsonReader::escapedUnit() {
    constexpr std::size_t digitCount = 4;
    const std::string_view digits = rest().substr(0, digitCount);
    unsigned unit = 0;
    const auto end = digits.data() + digits.size();
    const auto result = std::from_chars(digits.data(), end, unit, 16);
    if (digits.size() != digitCount || result.ec != std::errc() || result.ptr != end)
        throw JsonError("an escape without its digits");
    m_at += digitCount;
    return unit;
}

std::string_view JsonReader::numberText() {
    peek();
    const char* begin = m_at;
    const auto at = [this] { return m_at != m_end ? *m_at : '\0'; };
    if (at() == '-')
        ++m_at;
    if (at() == '0')
        ++m_at;
    else
        takeDigits();
    if (at() == '.') {
        ++m_at;
        takeDigits();
    }
    if (at() == 'e' || at() == 'E') {
        ++m_at;
        if (at() == '+' || at() == '-')
            ++m_at;
        takeDigits();
    }
    return {begin, static_cast<std::size_t>(m_at - begin)};
}

void JsonReader::takeDigits() {
    const char* begin = m_at;
    while (m_at != m_end && isDigit(*m_at))
        ++m_at;
    if (m_at == begin)
        throw JsonError("no number");
}

} // namespace dropshade
