// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>
#include <QUuid>

#include <cstddef>
#include <string>
#include <string_view>

namespace dropshade {

/// Writes one JSON document in UTF-8 with no white space. The caller keeps brackets in pairs and
/// puts a key before each value of an object.
class JsonWriter {
public:
    /// Room for `size` bytes, where it is known how long the text will be.
    void reserve(std::size_t size) { m_bytes.reserve(size); }

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

    /// What was written.
    [[nodiscard]] QByteArray text() const { return QByteArray::fromStdString(m_bytes); }

private:
    void open(char bracket);
    void close(char bracket);
    void separate();
    void appendEscaped(const QString& text);

    /// Appending a byte is the work done most, and cheaper here than in Qt's containers.
    std::string m_bytes;
    bool m_isSeparatorDue = false;
};

} // namespace dropshade
