// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "plist/PropertyListGuard.h"

#include "archive/PropertyListObjects.h"
#include "bytes/BytesOf.h"

#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

namespace dropshade {
namespace {

constexpr qsizetype mostBytes = 64 * 1024 * 1024;
/// Far more than any settings hold, and few enough to recurse through.
constexpr qsizetype mostXmlContainers = 10000;
constexpr std::size_t mostBinaryDepth = 512;
constexpr quint64 mostBinaryNodes = 1000000;
constexpr quint64 mostBinaryContent = 2 * quint64(mostBytes);
constexpr quint64 mostKeyLength = 1024;

using Objects = PropertyListObjects;

/// Whether the object is a string without NUL characters.
bool isKey(const Objects& objects, quint64 object) {
    const auto head = objects.head(object);
    if (!head || (head->kind != Objects::asciiString && head->kind != Objects::utf16String))
        return false;
    const quint64 width = head->kind == Objects::asciiString ? 1 : 2;
    if (head->count > mostKeyLength || !objects.bytes(head->content, head->count * width))
        return false;
    for (quint64 index = 0; index < head->count; ++index) {
        if (objects.number(head->content + index * width, width) == 0)
            return false;
    }
    return true;
}

/// What the object refers to; none for one that is no container. Nothing for one that can't be,
/// also a dictionary with a key that is no proper string: readers take that for granted.
std::optional<std::vector<quint64>> references(const Objects& objects, quint64 object) {
    const auto head = objects.head(object);
    if (!head)
        return std::nullopt;
    const bool isDictionary = head->kind == Objects::dictionary;
    if (!isDictionary && head->kind != Objects::array && head->kind != Objects::set)
        return std::vector<quint64>();
    const quint64 most = objects.mostReferences(*head);
    if (head->count > (isDictionary ? most / 2 : most))
        return std::nullopt;
    std::vector<quint64> all(std::size_t(isDictionary ? 2 * head->count : head->count));
    for (std::size_t index = 0; index < all.size(); ++index) {
        all[index] = objects.reference(*head, index);
        if (isDictionary && index < head->count && !isKey(objects, all[index]))
            return std::nullopt;
    }
    return all;
}

/// The bytes of data or of a string, as far as the file has them; 0 for anything else.
quint64 contentSize(const Objects& objects, quint64 object) {
    const auto head = objects.head(object);
    if (!head || head->kind < Objects::data || head->kind > Objects::utf16String)
        return 0;
    return std::min<quint64>(head->count * (head->kind == Objects::utf16String ? 2 : 1),
                             quint64(objects.size()));
}

/// Walks the tree that the objects spell, in which a shared object counts as often as it occurs.
bool isReasonableBinary(const QByteArray& bytes) {
    const auto objects = Objects::of(bytesOf(bytes));
    if (!objects)
        return false;
    std::vector<std::vector<quint64>> path = {{objects->root()}};
    // Those that still wait in the path as well: they are what takes memory.
    quint64 nodes = 1;
    quint64 content = 0;
    while (!path.empty()) {
        if (path.back().empty()) {
            path.pop_back();
            continue;
        }
        const quint64 object = path.back().back();
        path.back().pop_back();
        auto children = references(*objects, object);
        if (!children)
            return false;
        nodes += children->size();
        content += contentSize(*objects, object);
        if (nodes > mostBinaryNodes || content > mostBinaryContent)
            return false;
        path.push_back(std::move(*children));
        if (path.size() > mostBinaryDepth)
            return false;
    }
    return true;
}

} // namespace

bool isBinaryPropertyList(const QByteArray& bytes) {
    return Objects::isBinary(bytesOf(bytes));
}

bool isReasonablePropertyList(const QByteArray& bytes) {
    if (bytes.size() > mostBytes)
        return false;
    if (isBinaryPropertyList(bytes))
        return isReasonableBinary(bytes);
    // Counted rather than followed: what closes them may stand in a comment. No XML holds a NUL.
    return !bytes.contains('\0') &&
           bytes.count("<array") + bytes.count("<dict") <= mostXmlContainers;
}

} // namespace dropshade
