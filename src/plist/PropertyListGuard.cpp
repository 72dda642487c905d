// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "plist/PropertyListGuard.h"

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

constexpr char magic[] = "bplist00";
constexpr qsizetype magicSize = sizeof magic - 1;
constexpr qsizetype trailerSize = 32;

// The high half of a marker byte.
constexpr unsigned dataMarker = 0x4;
constexpr unsigned stringMarker = 0x5;
constexpr unsigned utf16StringMarker = 0x6;
constexpr unsigned arrayMarker = 0xA;
constexpr unsigned setMarker = 0xC;
constexpr unsigned dictionaryMarker = 0xD;

/// The objects of a binary list as far as the walk needs them: the references of each container.
class ObjectTable {
public:
    /// Nothing where the trailer points out of the file.
    static std::optional<ObjectTable> of(const QByteArray& bytes) {
        ObjectTable table(bytes);
        const qsizetype trailer = bytes.size() - trailerSize;
        if (trailer < magicSize)
            return std::nullopt;
        table.m_offsetSize = table.number(trailer + 6, 1);
        table.m_referenceSize = table.number(trailer + 7, 1);
        table.m_count = table.number(trailer + 8, 8);
        table.m_root = table.number(trailer + 16, 8);
        table.m_offsets = table.number(trailer + 24, 8);
        const bool isSound =
            isWidth(table.m_offsetSize) && isWidth(table.m_referenceSize) &&
            table.m_offsets <= quint64(trailer) &&
            table.m_count <= (quint64(trailer) - table.m_offsets) / table.m_offsetSize;
        return isSound ? std::optional(table) : std::nullopt;
    }

    [[nodiscard]] quint64 root() const { return m_root; }

    /// What the object refers to; none for one that is no container. Nothing for one that can't be,
    /// also a dictionary with a key that is no proper string: readers take that for granted.
    [[nodiscard]] std::optional<std::vector<quint64>> references(quint64 object) const {
        const auto head = headOf(object);
        if (!head)
            return std::nullopt;
        const bool isDictionary = head->kind == dictionaryMarker;
        if (!isDictionary && head->kind != arrayMarker && head->kind != setMarker)
            return std::vector<quint64>();
        const quint64 most = (quint64(m_bytes.size()) - head->content) / m_referenceSize;
        if (head->count > (isDictionary ? most / 2 : most))
            return std::nullopt;
        std::vector<quint64> all(std::size_t(isDictionary ? 2 * head->count : head->count));
        quint64 at = head->content;
        for (std::size_t index = 0; index < all.size(); ++index, at += m_referenceSize) {
            all[index] = number(qsizetype(at), m_referenceSize);
            if (isDictionary && index < head->count && !isKey(all[index]))
                return std::nullopt;
        }
        return all;
    }

    /// The bytes of data or of a string, as far as the file has them; 0 for anything else.
    [[nodiscard]] quint64 contentSize(quint64 object) const {
        const auto head = headOf(object);
        if (!head || head->kind < dataMarker || head->kind > utf16StringMarker)
            return 0;
        return std::min(head->count * (head->kind == utf16StringMarker ? 2 : 1),
                        quint64(m_bytes.size()));
    }

private:
    struct Head {
        unsigned kind = 0;
        quint64 count = 0;
        /// Where the content begins, within the file.
        quint64 content = 0;
    };

    explicit ObjectTable(const QByteArray& bytes) : m_bytes(bytes) {}

    static bool isWidth(quint64 size) { return size >= 1 && size <= 8; }

    /// An unsigned number, most significant byte first; the caller has checked that it is there.
    [[nodiscard]] quint64 number(qsizetype at, quint64 size) const {
        quint64 value = 0;
        for (qsizetype index = at; index < at + qsizetype(size); ++index)
            value = (value << 8U) | static_cast<unsigned char>(m_bytes.at(index));
        return value;
    }

    [[nodiscard]] std::optional<Head> headOf(quint64 object) const {
        if (object >= m_count)
            return std::nullopt;
        quint64 at = number(qsizetype(m_offsets + object * m_offsetSize), m_offsetSize);
        if (at >= quint64(m_bytes.size()))
            return std::nullopt;
        const quint64 marker = number(qsizetype(at++), 1);
        quint64 count = marker & 0xFU;
        const auto kind = unsigned(marker >> 4U);
        const bool hasCount = kind >= dataMarker;
        if (hasCount && count == 0xF && !takeLongCount(at, count))
            return std::nullopt;
        return Head{kind, count, at};
    }

    /// Whether the object is a string without NUL characters.
    [[nodiscard]] bool isKey(quint64 object) const {
        const auto head = headOf(object);
        if (!head || (head->kind != stringMarker && head->kind != utf16StringMarker))
            return false;
        const quint64 width = head->kind == stringMarker ? 1 : 2;
        if (head->count > mostKeyLength ||
            head->count > (quint64(m_bytes.size()) - head->content) / width)
            return false;
        for (quint64 index = 0; index < head->count; ++index) {
            if (number(qsizetype(head->content + index * width), width) == 0)
                return false;
        }
        return true;
    }

    /// A count above 14 stands behind the marker as an integer of 1, 2, 4 or 8 bytes.
    bool takeLongCount(quint64& at, quint64& count) const {
        if (at >= quint64(m_bytes.size()))
            return false;
        const quint64 marker = number(qsizetype(at++), 1);
        const quint64 size = quint64(1) << (marker & 0xFU);
        if (marker >> 4U != 1 || size > 8 || size > quint64(m_bytes.size()) - at)
            return false;
        count = number(qsizetype(at), size);
        at += size;
        return true;
    }

    QByteArray m_bytes;
    quint64 m_offsetSize = 0;
    quint64 m_referenceSize = 0;
    quint64 m_count = 0;
    quint64 m_root = 0;
    quint64 m_offsets = 0;
};

/// Walks the tree that the objects spell, in which a shared object counts as often as it occurs.
bool isReasonableBinary(const QByteArray& bytes) {
    const auto table = ObjectTable::of(bytes);
    if (!table)
        return false;
    std::vector<std::vector<quint64>> path = {{table->root()}};
    quint64 nodes = 0;
    quint64 content = 0;
    while (!path.empty()) {
        if (path.back().empty()) {
            path.pop_back();
            continue;
        }
        const quint64 object = path.back().back();
        path.back().pop_back();
        auto references = table->references(object);
        content += table->contentSize(object);
        if (!references || ++nodes + references->size() > mostBinaryNodes ||
            content > mostBinaryContent)
            return false;
        path.push_back(std::move(*references));
        if (path.size() > mostBinaryDepth)
            return false;
    }
    return true;
}

} // namespace

bool isBinaryPropertyList(const QByteArray& bytes) {
    return bytes.startsWith(magic);
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
