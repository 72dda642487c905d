// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "archive/PropertyListTree.h"

namespace dropshade {

/// A property list in which objects refer to one another by number, as an archiver by keys writes
/// it, binary or XML. References are followed wherever a value is asked for; a null reference is no
/// value.
class KeyedArchive {
public:
    using Node = PropertyListTree::Node;

    /// Nothing for bytes of any other kind.
    [[nodiscard]] static std::optional<KeyedArchive> open(const QByteArray& bytes);

    /// The dictionary of what was archived.
    [[nodiscard]] Node top() const { return m_top; }
    /// Whether nothing was archived.
    [[nodiscard]] bool isEmpty() const { return m_list->count(m_top) == 0; }

    [[nodiscard]] std::optional<Node> value(Node object, std::string_view key) const;
    [[nodiscard]] std::optional<std::int64_t> integer(Node object, std::string_view key) const;
    /// The bytes of data, at most `most` of them.
    [[nodiscard]] std::optional<QByteArray> data(Node object, std::string_view key,
                                                 qsizetype most) const;

    /// How many objects an archived array holds, and one of them.
    [[nodiscard]] std::optional<std::uint64_t> count(Node array) const;
    [[nodiscard]] std::optional<Node> item(Node array, std::uint64_t place) const;

    [[nodiscard]] std::optional<QString> string(Node object) const;

private:
    KeyedArchive(std::unique_ptr<PropertyListTree> list, Node top, Node objects)
        : m_list(std::move(list)), m_top(top), m_objects(objects) {}

    /// What the node refers to if it is a reference, else itself.
    [[nodiscard]] std::optional<Node> followed(std::optional<Node> node) const;

    [[nodiscard]] std::optional<std::uint64_t> referenceIn(Node node) const;

    std::unique_ptr<PropertyListTree> m_list;
    Node m_top;
    Node m_objects;
};

} // namespace dropshade
