// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QList>

namespace dropshade {

/// A binary property list of these objects, the first of them its root.
inline QByteArray binaryPropertyList(const QList<QByteArray>& objects) {
    const auto number = [](quint64 value, int size) {
        QByteArray bytes;
        for (int index = size - 1; index >= 0; --index)
            bytes.append(static_cast<char>(value >> (8 * index)));
        return bytes;
    };
    QByteArray list("bplist00");
    QByteArray offsets;
    for (const QByteArray& object : objects) {
        offsets.append(number(quint64(list.size()), 4));
        list.append(object);
    }
    const auto tableOffset = quint64(list.size());
    return list + offsets + QByteArray(6, '\0') + number(4, 1) + number(3, 1) +
           number(quint64(objects.size()), 8) + number(0, 8) + number(tableOffset, 8);
}

/// A chain of arrays, each with `width` references to the next, and "true" at its end: a tree of
/// width to the power of depth in a few bytes for each level.
inline QByteArray binaryArrayChain(int depth, int width) {
    QList<QByteArray> objects;
    for (int level = 1; level <= depth; ++level) {
        QByteArray object(1, static_cast<char>(0xA0 + width));
        for (int index = 0; index < width; ++index) {
            object.append(static_cast<char>(level >> 16));
            object.append(static_cast<char>(level >> 8));
            object.append(static_cast<char>(level));
        }
        objects.append(object);
    }
    objects.append(QByteArray(1, '\x09'));
    return binaryPropertyList(objects);
}

} // namespace dropshade
