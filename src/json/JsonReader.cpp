// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "json/JsonReader.h"

#include "json/UuidText.h"

#include <charconv>
#include <cmath>
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
    : m_owner(text), m_text(m_owner.constData(), std::size_t(m_owner.size())) {
    if (!m_owner.isValidUtf8())
        throw JsonError("not UTF-8");
}

QString JsonReader::string() {
    QByteArray unescaped;
    std::string_view bytes = stringBytes(unescaped);
    // Qt takes a mark in front for one of the byte order; in here it is a character of the text.
    constexpr std::string_view mark = "\xEF\xBB\xBF";
    QString marks;
    for (; bytes.substr(0, mark.size()) == mark; bytes.remove_prefix(mark.size()))
        marks += QChar(QChar::ByteOrderMark);
    return marks + QString::fromUtf8(bytes.data(), static_cast<qsizetype>(bytes.size()));
}

QUuid JsonReader::uuid() {
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
    if (m_at != m_text.size())
        throw JsonError("more than one value");
}

void JsonReader::enter(char bracket) {
    expect(bracket);
    if (++m_depth > mostDepth)
        throw JsonError("nested too deep");
}

bool JsonReader::nextItem(char bracket, bool isFirst) {
    if (peek() == bracket) {
        ++m_at;
        --m_depth;
        return false;
    }
    if (!isFirst)
        expect(',');
    return true;
}

void JsonReader::skipWhiteSpace() {
    while (m_at < m_text.size() && isWhiteSpace(m_text[m_at]))
        ++m_at;
}

char JsonReader::peek() {
    skipWhiteSpace();
    if (m_at == m_text.size())
        throw JsonError("the text ends too soon");
    return m_text[m_at];
}

void JsonReader::expect(char character) {
    if (peek() != character)
        throw JsonError("another character expected");
    ++m_at;
}

bool JsonReader::takeWord(std::string_view word) {
    if (m_text.substr(m_at, word.size()) != word)
        throw JsonError("an unknown word");
    m_at += word.size();
    return true;
}

std::string_view JsonReader::stringBytes(QByteArray& unescaped) {
    expect('"');
    const std::size_t begin = m_at;
    std::size_t end = begin;
    while (end < m_text.size() && isPlain(m_text[end]))
        ++end;
    m_at = end;
    if (end < m_text.size() && m_text[end] == '"') {
        ++m_at;
        return m_text.substr(begin, end - begin);
    }
    // An end that isn't there, or a control character, is for `unescape` to find.
    unescaped = unescape(begin);
    return {unescaped.constData(), std::size_t(unescaped.size())};
}

QByteArray JsonReader::unescape(std::size_t begin) {
    QByteArray bytes(m_text.data() + begin, static_cast<qsizetype>(m_at - begin));
    while (m_at < m_text.size()) {
        const char byte = m_text[m_at++];
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
    const char name = m_at < m_text.size() ? m_text[m_at++] : '\0';
    if (name != 'u') {
        const auto index = name == '\0' ? std::string_view::npos : names.find(name);
        if (index == std::string_view::npos)
            throw JsonError("an unknown escape");
        bytes.append(meanings[index]);
        return;
    }
    const char32_t unit = escapedUnit();
    if (isHighSurrogate(unit) && m_text.substr(m_at, 2) == "\\u") {
        const std::size_t second = m_at;
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
    const std::string_view digits = m_text.substr(m_at, digitCount);
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
    const std::size_t begin = m_at;
    const auto at = [this] { return m_at < m_text.size() ? m_text[m_at] : '\0'; };
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
    return m_text.substr(begin, m_at - begin);
}

void JsonReader::takeDigits() {
    const std::size_t begin = m_at;
    while (m_at < m_text.size() && isDigit(m_text[m_at]))
        ++m_at;
    if (m_at == begin)
        throw JsonError("no number");
}

} // namespace dropshade
