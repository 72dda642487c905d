// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>
#include <QUuid>

#include <algorithm>
#include <string_view>
#include <utility>

namespace dropshade {

/// Writes one JSON document in UTF-8 with no white space. The caller keeps brackets in pairs and
/// puts a key before each value of an object.
class JsonWriter {
public:
    JsonWriter() = default;
    JsonWriter(const JsonWriter&) = delete;
    JsonWriter& operator=(const JsonWriter&) = delete;

    /// Room for `size` bytes, where it is known how long the text will be.
    void reserve(qsizetype size);

    void beginObject() { open('{'); }
    void endObject() { close('}'); }
    void beginArray() { open('['); }
    void endArray() { close(']'); }

    /// `name` needs no escapes: it is a key of ours.
    void key(std::string_view name);
    /// A lone surrogate, which UTF-8 has no form for, is written as a substitute.
    void string(const QString& text);
    /// In the shortest form that reads back to the same bits. Throws `JsonError` for what is not
    /// finite: JSON has no such number.
    void number(double value);
    void uuid(const QUuid& id);

    /// What was written; the writer begins anew.
    [[nodiscard]] QByteArray text();

private:
    void open(char bracket);
    void close(char bracket);
    /// Where the next `size` bytes go, behind a comma where one is due.
    char* nextValue(qsizetype size);
    /// Where the next `size` bytes go.
    char* extend(qsizetype size);
    void makeRoom(qsizetype size);
    void appendEscaped(const QString& text);

    /// Written through a pointer: a library takes millions of steps, and each would ask a container
    /// whether it shares its bytes. They are as many as there is room for.
    QByteArray m_bytes;
    char* m_at = nullptr;
    char* m_end = nullptr;
    bool m_isSeparatorDue = false;
};

// Between the values of a library these are called millions of times, so they are in here.

inline char* JsonWriter::extend(qsizetype size) {
    if (m_end - m_at < size)
        makeRoom(size);
    return std::exchange(m_at, m_at + size);
}

inline char* JsonWriter::nextValue(qsizetype size) {
    const bool isSeparatorDue = std::exchange(m_isSeparatorDue, true);
    char* to = extend(size + (isSeparatorDue ? 1 : 0));
    if (isSeparatorDue)
        *to++ = ',';
    return to;
}

inline void JsonWriter::key(std::string_view name) {
    char* to = nextValue(static_cast<qsizetype>(name.size()) + 3);
    *to++ = '"';
    to = std::copy(name.begin(), name.end(), to);
    *to++ = '"';
    *to = ':';
    m_isSeparatorDue = false;
}

} // namespace dropshade
