// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "archive/BinaryPropertyListWriter.h"

#include "archive/PropertyListObjects.h"

#include <QtEndian>

#include <algorithm>

namespace dropshade {
namespace {

using Objects = PropertyListObjects;

/// How many bytes an unsigned number takes; readers expect a power of two for integers only.
int widthOf(std::uint64_t number) {
    int width = 1;
    while (width < 8 && number >> (8 * width) != 0)
        ++width;
    return width;
}

} // namespace

BinaryPropertyListWriter::BinaryPropertyListWriter(std::uint64_t mostObjects)
    : m_bytes("bplist00"), m_referenceSize(widthOf(mostObjects)) {}

BinaryPropertyListWriter::Object BinaryPropertyListWriter::begin() {
    m_offsets.push_back(std::uint64_t(m_bytes.size()));
    return m_offsets.size() - 1;
}

void BinaryPropertyListWriter::append(std::uint64_t number, int size) {
    for (int shift = 8 * (size - 1); shift >= 0; shift -= 8)
        m_bytes.append(static_cast<char>(number >> shift));
}

void BinaryPropertyListWriter::beginCounted(unsigned kind, std::uint64_t count) {
    append(kind << 4U | std::min<std::uint64_t>(count, 0xF), 1);
    if (count < 0xF)
        return;
    append(Objects::integer << 4U | 2U, 1);
    append(count, 4);
}

BinaryPropertyListWriter::Object BinaryPropertyListWriter::string(const QString& text) {
    const Object object = begin();
    const bool isAscii =
        std::all_of(text.begin(), text.end(), [](QChar unit) { return unit.unicode() < 0x80; });
    beginCounted(isAscii ? Objects::asciiString : Objects::utf16String, std::uint64_t(text.size()));
    if (isAscii) {
        m_bytes.append(text.toLatin1());
    } else {
        const qsizetype start = m_bytes.size();
        m_bytes.resize(start + 2 * text.size());
        qToBigEndian<char16_t>(text.utf16(), text.size(), m_bytes.data() + start);
    }
    return object;
}

BinaryPropertyListWriter::Object BinaryPropertyListWriter::data(const QByteArray& bytes) {
    const Object object = begin();
    beginCounted(Objects::data, std::uint64_t(bytes.size()));
    m_bytes.append(bytes);
    return object;
}

BinaryPropertyListWriter::Object BinaryPropertyListWriter::integer(std::uint32_t number) {
    const Object object = begin();
    // Those of four bytes and less have no sign.
    append(Objects::integer << 4U | 2U, 1);
    append(number, 4);
    return object;
}

BinaryPropertyListWriter::Object BinaryPropertyListWriter::uid(std::uint32_t number) {
    const Object object = begin();
    const int width = widthOf(number) == 3 ? 4 : widthOf(number);
    append(Objects::uid << 4U | unsigned(width - 1), 1);
    append(number, width);
    return object;
}

BinaryPropertyListWriter::Object
BinaryPropertyListWriter::array(const std::vector<Object>& objects) {
    const Object object = begin();
    beginCounted(Objects::array, objects.size());
    for (const Object item : objects)
        append(item, m_referenceSize);
    return object;
}

BinaryPropertyListWriter::Object
BinaryPropertyListWriter::dictionary(std::initializer_list<std::pair<Object, Object>> entries) {
    const Object object = begin();
    beginCounted(Objects::dictionary, entries.size());
    for (const auto& entry : entries)
        append(entry.first, m_referenceSize);
    for (const auto& entry : entries)
        append(entry.second, m_referenceSize);
    return object;
}

QByteArray BinaryPropertyListWriter::file(Object root) {
    const auto table = std::uint64_t(m_bytes.size());
    const int offsetSize = widthOf(table);
    for (const std::uint64_t offset : m_offsets)
        append(offset, offsetSize);
    append(0, 6);
    append(std::uint64_t(offsetSize), 1);
    append(std::uint64_t(m_referenceSize), 1);
    append(m_offsets.size(), 8);
    append(root, 8);
    append(table, 8);
    return m_bytes;
}

} // namespace dropshade
