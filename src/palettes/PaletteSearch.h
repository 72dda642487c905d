// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QUuid>

#include <algorithm>
#include <optional>

namespace dropshade {

// Palettes, scales and swatches in lists, by id.

/// The place of the first item with that id, or -1.
template <typename Item>
[[nodiscard]] qsizetype indexOfId(const QList<Item>& items, const QUuid& id) {
    const auto found = std::find_if(items.cbegin(), items.cend(),
                                    [&id](const Item& item) { return item.id() == id; });
    return found == items.cend() ? -1 : found - items.cbegin();
}

template <typename Item>
[[nodiscard]] std::optional<Item> itemWithId(const QList<Item>& items, const QUuid& id) {
    const qsizetype index = indexOfId(items, id);
    return index < 0 ? std::nullopt : std::optional(items.at(index));
}

template <typename Item>
[[nodiscard]] QList<QUuid> idsOf(const QList<Item>& items) {
    QList<QUuid> ids;
    ids.reserve(items.size());
    for (const Item& item : items)
        ids.append(item.id());
    return ids;
}

} // namespace dropshade
