// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>

namespace dropshade {

/// A property list whose values are looked up one at a time and never built into a tree, so that
/// what a list costs depends on what is asked of it. Each question about a node that is of another
/// kind, or broken, gives nothing. Lists may refer to themselves: whoever follows them counts.
class PropertyListTree {
public:
    /// Stands for a value; good for the tree that gave it.
    using Node = std::uint64_t;
    /// What lies further back in a dictionary isn't found; no archive has half as many.
    static constexpr std::uint64_t mostKeys = 64;

    /// Nothing for bytes that are no property list, neither binary nor XML.
    [[nodiscard]] static std::unique_ptr<PropertyListTree> open(const QByteArray& bytes);

    PropertyListTree() = default;
    virtual ~PropertyListTree() = default;
    PropertyListTree(const PropertyListTree&) = delete;
    PropertyListTree& operator=(const PropertyListTree&) = delete;

    [[nodiscard]] virtual Node root() const = 0;

    /// How many entries a dictionary or an array has.
    [[nodiscard]] virtual std::optional<std::uint64_t> count(Node container) const = 0;
    [[nodiscard]] virtual std::optional<Node> value(Node dictionary,
                                                    std::string_view key) const = 0;
    [[nodiscard]] virtual std::optional<Node> item(Node array, std::uint64_t place) const = 0;

    [[nodiscard]] virtual std::optional<QString> string(Node node) const = 0;
    /// The bytes of data, at most `most` of them.
    [[nodiscard]] virtual std::optional<QByteArray> data(Node node, qsizetype most) const = 0;
    [[nodiscard]] virtual std::optional<std::int64_t> integer(Node node) const = 0;
    /// The number by which a keyed archive in binary refers to another of its objects.
    [[nodiscard]] virtual std::optional<std::uint64_t> uid(Node node) const = 0;
};

} // namespace dropshade
