// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "interchange/PrettyJsonWriter.h"

namespace dropshade {
namespace {

constexpr qsizetype indentation = 2;
constexpr std::string_view hexDigits = "0123456789abcdef";

} // namespace

void PrettyJsonWriter::key(std::string_view name) {
    separate();
    m_bytes.append('"').append(name.data(), qsizetype(name.size())).append("\" : ");
    m_before = Before::Nothing;
}

void PrettyJsonWriter::string(const QString& text) {
    separate();
    m_bytes.append('"');
    const QByteArray encoded = text.toUtf8();
    for (const char byte : encoded)
        appendEscaped(byte);
    m_bytes.append('"');
    m_before = Before::Comma;
}

void PrettyJsonWriter::appendEscaped(char byte) {
    constexpr std::string_view escaped = "\"\\/\b\f\n\r\t";
    constexpr std::string_view names = "\"\\/bfnrt";
    const auto unit = static_cast<unsigned char>(byte);
    if (const auto index = escaped.find(byte); index != std::string_view::npos)
        m_bytes.append('\\').append(names[index]);
    else if (unit < 0x20)
        m_bytes.append("\\u00").append(hexDigits[unit >> 4U]).append(hexDigits[unit & 0xFU]);
    else
        m_bytes.append(byte);
}

void PrettyJsonWriter::open(char bracket) {
    separate();
    m_bytes.append(bracket);
    ++m_depth;
    m_before = Before::Line;
}

void PrettyJsonWriter::close(char bracket) {
    if (m_before == Before::Line)
        m_bytes.append('\n');
    --m_depth;
    beginLine();
    m_bytes.append(bracket);
    m_before = Before::Comma;
}

void PrettyJsonWriter::separate() {
    if (m_before == Before::Comma)
        m_bytes.append(',');
    if (m_before != Before::Nothing)
        beginLine();
}

void PrettyJsonWriter::beginLine() {
    m_bytes.append('\n').append(m_depth * indentation, ' ');
}

} // namespace dropshade
