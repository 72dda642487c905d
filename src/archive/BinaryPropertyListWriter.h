// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <cstdint>
#include <initializer_list>
#include <utility>
#include <vector>

namespace dropshade {

/// Writes a binary property list, object by object; each may refer to any other by number, so that
/// what occurs often is written once. Memory is the file's own and eight bytes an object.
class BinaryPropertyListWriter {
public:
    /// Counts from 0 in the order of writing.
    using Object = std::uint64_t;

    /// For at most so many objects, which decides how wide references are.
    explicit BinaryPropertyListWriter(std::uint64_t mostObjects);

    Object string(const QString& text);
    Object data(const QByteArray& bytes);
    /// At least 0.
    Object integer(std::uint32_t number);
    /// A reference of a keyed archive.
    Object uid(std::uint32_t number);
    Object array(const std::vector<Object>& objects);
    Object dictionary(std::initializer_list<std::pair<Object, Object>> entries);

    /// The whole file. Nothing may be written after it.
    [[nodiscard]] QByteArray file(Object root);

private:
    Object begin();
    void beginCounted(unsigned kind, std::uint64_t count);
    void append(std::uint64_t number, int size);

    QByteArray m_bytes;
    std::vector<std::uint64_t> m_offsets;
    int m_referenceSize;
};

} // namespace dropshade
