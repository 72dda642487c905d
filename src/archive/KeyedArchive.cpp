// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "archive/KeyedArchive.h"

namespace dropshade {

std::optional<KeyedArchive> KeyedArchive::open(const QByteArray& bytes) {
    auto list = PropertyListTree::open(bytes);
    const auto top = list ? list->value(list->root(), "$top") : std::nullopt;
    const auto objects = list ? list->value(list->root(), "$objects") : std::nullopt;
    if (!top || !objects || !list->count(*top))
        return std::nullopt;
    return KeyedArchive(std::move(list), *top, *objects);
}

std::optional<KeyedArchive::Node> KeyedArchive::followed(std::optional<Node> node) const {
    const auto number = node ? referenceIn(*node) : std::nullopt;
    if (!number)
        return node;
    return *number == 0 ? std::nullopt : m_list->item(m_objects, *number);
}

/// A list that was converted, and any in XML, spells it as a dictionary.
std::optional<std::uint64_t> KeyedArchive::referenceIn(Node node) const {
    if (const auto number = m_list->uid(node))
        return number;
    const auto spelt = m_list->count(node) == 1 ? m_list->value(node, "CF$UID") : std::nullopt;
    const auto number = spelt ? m_list->integer(*spelt) : std::nullopt;
    return number && *number >= 0 ? std::optional(std::uint64_t(*number)) : std::nullopt;
}

std::optional<KeyedArchive::Node> KeyedArchive::value(Node object, std::string_view key) const {
    return followed(m_list->value(object, key));
}

std::optional<std::int64_t> KeyedArchive::integer(Node object, std::string_view key) const {
    const auto node = value(object, key);
    return node ? m_list->integer(*node) : std::nullopt;
}

std::optional<QByteArray> KeyedArchive::data(Node object, std::string_view key,
                                             qsizetype most) const {
    const auto node = value(object, key);
    if (!node)
        return std::nullopt;
    if (const auto bytes = m_list->data(*node, most))
        return bytes;
    const auto inner = value(*node, "NS.data");
    return inner ? m_list->data(*inner, most) : std::nullopt;
}

std::optional<std::uint64_t> KeyedArchive::count(Node array) const {
    const auto objects = value(array, "NS.objects");
    return objects ? m_list->count(*objects) : std::nullopt;
}

std::optional<KeyedArchive::Node> KeyedArchive::item(Node array, std::uint64_t place) const {
    const auto objects = value(array, "NS.objects");
    return objects ? followed(m_list->item(*objects, place)) : std::nullopt;
}

std::optional<QString> KeyedArchive::string(Node object) const {
    if (const auto text = m_list->string(object))
        return text;
    const auto inner = value(object, "NS.string");
    return inner ? m_list->string(*inner) : std::nullopt;
}

} // namespace dropshade
