// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <string_view>

namespace dropshade {

/// Writes one JSON document for people: two blanks of indentation, a blank on both sides of a
/// colon, slashes escaped, and an empty line between the brackets of what is empty. The caller
/// keeps brackets in pairs and puts a key before each value of an object, in order.
class PrettyJsonWriter {
public:
    void beginObject() { open('{'); }
    void endObject() { close('}'); }
    void beginArray() { open('['); }
    void endArray() { close(']'); }

    /// `name` needs no escapes: it is a key of ours.
    void key(std::string_view name);
    /// A lone surrogate, which UTF-8 has no form for, is written as a substitute.
    void string(const QString& text);

    /// What was written, in UTF-8.
    [[nodiscard]] const QByteArray& text() const { return m_bytes; }

private:
    enum class Before { Nothing, Line, Comma };

    void open(char bracket);
    void close(char bracket);
    void separate();
    void beginLine();
    void appendEscaped(char byte);

    QByteArray m_bytes;
    Before m_before = Before::Nothing;
    qsizetype m_depth = 0;
};

} // namespace dropshade
