// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "archive/BinaryPropertyList.h"

#include "bytes/BytesOf.h"

#include <QtEndian>

#include <algorithm>

namespace dropshade {
namespace {

using Objects = PropertyListObjects;

constexpr std::uint64_t widestInteger = 8;

} // namespace

std::unique_ptr<PropertyListTree> BinaryPropertyList::open(const QByteArray& bytes) {
    const auto objects =
        Objects::isBinary(bytesOf(bytes)) ? Objects::of(bytesOf(bytes)) : std::nullopt;
    return objects ? std::unique_ptr<PropertyListTree>(new BinaryPropertyList(bytes, *objects))
                   : nullptr;
}

std::optional<BinaryPropertyList::Head> BinaryPropertyList::headOf(Node node, unsigned kind) const {
    const auto head = m_objects.head(node);
    return head && head->kind == kind ? head : std::nullopt;
}

std::optional<std::uint64_t> BinaryPropertyList::count(Node container) const {
    const auto head = m_objects.head(container);
    if (!head || (head->kind != Objects::array && head->kind != Objects::dictionary))
        return std::nullopt;
    const std::uint64_t width = head->kind == Objects::array ? 1 : 2;
    if (head->count > m_objects.mostReferences(*head) / width)
        return std::nullopt;
    return head->count;
}

bool BinaryPropertyList::isKey(Node node, std::string_view key) const {
    const auto head = headOf(node, Objects::asciiString);
    if (!head || head->count != key.size())
        return false;
    const auto text = m_objects.bytes(head->content, head->count);
    return text && std::ranges::equal(*text, key, {}, {}, [](char character) {
               return static_cast<std::uint8_t>(character);
           });
}

std::optional<BinaryPropertyList::Node> BinaryPropertyList::value(Node dictionary,
                                                                  std::string_view key) const {
    const auto head = headOf(dictionary, Objects::dictionary);
    const auto entries = head ? count(dictionary) : std::nullopt;
    for (std::uint64_t place = 0; place < std::min(entries.value_or(0), mostKeys); ++place) {
        if (isKey(m_objects.reference(*head, place), key))
            return m_objects.reference(*head, head->count + place);
    }
    return std::nullopt;
}

std::optional<BinaryPropertyList::Node> BinaryPropertyList::item(Node array,
                                                                 std::uint64_t place) const {
    const auto head = headOf(array, Objects::array);
    if (!head || place >= std::min(head->count, m_objects.mostReferences(*head)))
        return std::nullopt;
    return m_objects.reference(*head, place);
}

std::optional<QString> BinaryPropertyList::string(Node node) const {
    const auto head = m_objects.head(node);
    if (!head || head->count > m_objects.size())
        return std::nullopt;
    if (head->kind == Objects::asciiString) {
        const auto text = m_objects.bytes(head->content, head->count);
        return text ? std::optional(QString::fromLatin1(reinterpret_cast<const char*>(text->data()),
                                                        qsizetype(text->size())))
                    : std::nullopt;
    }
    const auto units = head->kind == Objects::utf16String
                           ? m_objects.bytes(head->content, 2 * head->count)
                           : std::nullopt;
    if (!units)
        return std::nullopt;
    QString text(qsizetype(head->count), Qt::Uninitialized);
    qFromBigEndian<char16_t>(units->data(), text.size(), text.data());
    return text;
}

std::optional<QByteArray> BinaryPropertyList::data(Node node, qsizetype most) const {
    const auto head = headOf(node, Objects::data);
    const auto bytes = head ? m_objects.bytes(head->content, head->count) : std::nullopt;
    if (!bytes)
        return std::nullopt;
    return QByteArray(reinterpret_cast<const char*>(bytes->data()),
                      std::min(qsizetype(bytes->size()), most));
}

std::optional<std::int64_t> BinaryPropertyList::integer(Node node) const {
    const auto head = headOf(node, Objects::integer);
    const std::uint64_t size = head ? std::uint64_t(1) << head->count : 0;
    if (!head || size > widestInteger || !m_objects.bytes(head->content, size))
        return std::nullopt;
    // Only those of eight bytes have a sign.
    return static_cast<std::int64_t>(m_objects.number(head->content, size));
}

std::optional<std::uint64_t> BinaryPropertyList::uid(Node node) const {
    const auto head = headOf(node, Objects::uid);
    const std::uint64_t size = head ? head->count + 1 : 0;
    if (!head || size > widestInteger || !m_objects.bytes(head->content, size))
        return std::nullopt;
    return m_objects.number(head->content, size);
}

} // namespace dropshade
