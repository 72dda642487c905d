// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "archive/PropertyListTree.h"

#include <vector>

namespace dropshade {

/// An XML property list as one flat table. This form has no references of its own.
/// The text is UTF-8, whatever it declares.
class XmlPropertyList : public PropertyListTree {
public:
    [[nodiscard]] static std::unique_ptr<PropertyListTree> open(const QByteArray& bytes);

    [[nodiscard]] Node root() const override { return m_root; }
    [[nodiscard]] std::optional<std::uint64_t> count(Node container) const override;
    [[nodiscard]] std::optional<Node> value(Node dictionary, std::string_view key) const override;
    [[nodiscard]] std::optional<Node> item(Node array, std::uint64_t place) const override;
    [[nodiscard]] std::optional<QString> string(Node node) const override;
    [[nodiscard]] std::optional<QByteArray> data(Node node, qsizetype most) const override;
    [[nodiscard]] std::optional<std::int64_t> integer(Node node) const override;
    [[nodiscard]] std::optional<std::uint64_t> uid(Node node) const override;

private:
    class Parser;

    enum class Kind : std::uint8_t { dictionary, array, key, string, data, integer, other };

    /// A container's children are in `m_children`, a text in `m_text`.
    struct Entry {
        Kind kind = Kind::other;
        std::uint32_t first = 0;
        std::uint32_t count = 0;
    };

    XmlPropertyList() = default;

    [[nodiscard]] const Entry* entry(Node node, Kind kind) const;
    [[nodiscard]] QStringView text(const Entry& entry) const;

    std::vector<Entry> m_entries;
    /// Of a dictionary a key and its value in turn.
    std::vector<std::uint32_t> m_children;
    QString m_text;
    Node m_root = 0;
};

} // namespace dropshade
