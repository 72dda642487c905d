// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>
#include <QtEndian>

#include <bit>
#include <initializer_list>

// Swatch-exchange files written byte by byte, also such as no program writes.
namespace dropshade::ase {

template <typename Number>
QByteArray bigEndian(Number number) {
    QByteArray bytes(sizeof number, '\0');
    qToBigEndian(number, bytes.data());
    return bytes;
}

inline QByteArray units(const QString& text) {
    QByteArray bytes;
    for (const QChar unit : text)
        bytes += bigEndian(quint16(unit.unicode()));
    return bytes;
}

/// With its terminator.
inline QByteArray name(const QString& text) {
    return bigEndian(quint16(text.size() + 1)) + units(text) + bigEndian(quint16(0));
}

inline QByteArray floats(std::initializer_list<float> numbers) {
    QByteArray bytes;
    for (const float number : numbers)
        bytes += bigEndian(std::bit_cast<quint32>(number));
    return bytes;
}

inline QByteArray block(quint16 type, const QByteArray& body) {
    return bigEndian(type) + bigEndian(quint32(body.size())) + body;
}

inline QByteArray colorBody(const QByteArray& nameField, const QByteArray& model,
                            std::initializer_list<float> numbers) {
    return nameField + model + floats(numbers) + bigEndian(quint16(0));
}

inline QByteArray color(const QString& text, const QByteArray& model,
                        std::initializer_list<float> numbers) {
    return block(0x0001, colorBody(name(text), model, numbers));
}

inline QByteArray red(const QString& text) {
    return color(text, "RGB ", {1.0F, 0.0F, 0.0F});
}

inline QByteArray groupStart(const QString& text) {
    return block(0xC001, name(text));
}

inline QByteArray groupEnd() {
    return block(0xC002, QByteArray());
}

/// A file that announces `count` blocks.
inline QByteArray file(quint32 count, const QByteArray& blocks) {
    return QByteArray("ASEF\0\1\0\0", 8) + bigEndian(count) + blocks;
}

} // namespace dropshade::ase
