// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "json/JsonError.h"

#include <QByteArray>
#include <QString>
#include <QUuid>

#include <string_view>

namespace dropshade {

/// Reads one JSON document (RFC 8259) from front to end, value by value, with no tree in between.
/// Everything throws `JsonError` where the text is no JSON, or where the value at hand is not of
/// the kind asked for.
///
/// - The text must be UTF-8; a byte order mark is no part of JSON.
/// - An escaped lone surrogate reads as U+FFFD.
/// - A number too large for a double is an error unless it is skipped, one too small is 0.
/// - Values may nest 512 deep.
class JsonReader {
public:
    explicit JsonReader(const QByteArray& text);

    /// Calls `read(key)` for each key; it must take the value by one call on this reader. The key
    /// is UTF-8 and good until then.
    template <typename Read>
    void object(Read read) {
        enter('{');
        for (bool isFirst = true; nextItem('}', isFirst); isFirst = false) {
            QByteArray unescaped;
            const std::string_view name = stringBytes(unescaped);
            expect(':');
            read(name);
        }
    }

    /// Calls `read()` for each element; it must take it by one call on this reader.
    template <typename Read>
    void array(Read read) {
        enter('[');
        for (bool isFirst = true; nextItem(']', isFirst); isFirst = false)
            read();
    }

    [[nodiscard]] QString string();
    [[nodiscard]] double number();
    [[nodiscard]] bool boolean();
    /// A string that spells an id, in either case.
    [[nodiscard]] QUuid uuid();
    /// Takes the value if it is null, and says whether it was.
    [[nodiscard]] bool null();
    /// Takes one value of any kind.
    void skip();

    /// Nothing but white space may follow.
    void end();

private:
    void enter(char bracket);
    bool nextItem(char bracket, bool isFirst);
    char peek();
    void expect(char character);
    void skipWhiteSpace();
    bool takeWord(std::string_view word);
    std::string_view stringBytes(QByteArray& unescaped);
    QByteArray unescape(const char* begin);
    void appendEscape(QByteArray& bytes);
    char32_t escapedUnit();
    std::string_view numberText();
    void takeDigits();
    [[nodiscard]] std::string_view rest() const {
        return {m_at, static_cast<std::size_t>(m_end - m_at)};
    }

    QByteArray m_owner;
    const char* m_at;
    const char* m_end;
    int m_depth = 0;
};

// Between the values of a library these are called millions of times, so they are in here.

inline char JsonReader::peek() {
    if (m_at == m_end || static_cast<unsigned char>(*m_at) <= 0x20) {
        skipWhiteSpace();
        if (m_at == m_end)
            throw JsonError("the text ends too soon");
    }
    return *m_at;
}

inline void JsonReader::expect(char character) {
    if (peek() != character)
        throw JsonError("another character expected");
    ++m_at;
}

inline bool JsonReader::nextItem(char bracket, bool isFirst) {
    if (peek() == bracket) {
        ++m_at;
        --m_depth;
        return false;
    }
    if (!isFirst)
        expect(',');
    return true;
}

} // namespace dropshade
