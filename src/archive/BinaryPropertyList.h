// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "archive/PropertyListObjects.h"
#include "archive/PropertyListTree.h"

namespace dropshade {

/// A binary property list, read where it lies: takes no memory of its own.
class BinaryPropertyList : public PropertyListTree {
public:
    [[nodiscard]] static std::unique_ptr<PropertyListTree> open(const QByteArray& bytes);

    [[nodiscard]] Node root() const override { return m_objects.root(); }
    [[nodiscard]] std::optional<std::uint64_t> count(Node container) const override;
    [[nodiscard]] std::optional<Node> value(Node dictionary, std::string_view key) const override;
    [[nodiscard]] std::optional<Node> item(Node array, std::uint64_t place) const override;
    [[nodiscard]] std::optional<QString> string(Node node) const override;
    [[nodiscard]] std::optional<QByteArray> data(Node node, qsizetype most) const override;
    [[nodiscard]] std::optional<std::int64_t> integer(Node node) const override;
    [[nodiscard]] std::optional<std::uint64_t> uid(Node node) const override;

private:
    using Head = PropertyListObjects::Head;

    BinaryPropertyList(const QByteArray& bytes, const PropertyListObjects& objects)
        : m_bytes(bytes), m_objects(objects) {}

    [[nodiscard]] std::optional<Head> headOf(Node node, unsigned kind) const;
    [[nodiscard]] bool isKey(Node node, std::string_view key) const;

    QByteArray m_bytes;
    PropertyListObjects m_objects;
};

} // namespace dropshade
