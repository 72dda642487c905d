// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/UserDefaults.h"

#include <QHash>
#include <QUuid>

#include <optional>
#include <utility>

namespace dropshade {

/// A list of the user's and its text, as it was when it was last read or written. Another process
/// may have written since: by what both have made of this one, neither undoes the other's changes.
///
/// A `Form` tells of the items, by static functions: `encoded(list)` and `decoded(text)`, optional
/// both; `id(item)`; `areAlike(a, b)`; and `winner(ours, theirs)` where both sides changed one.
template <typename Item>
struct KeptList {
    QList<Item> items;
    QByteArray json;
};

/// What both sides made of `base`: in our order, and behind what the others have added. An item
/// goes where one side removed it and the other left it alone.
template <typename Form, typename Item>
[[nodiscard]] QList<Item> mergedLists(const QList<Item>& base, const QList<Item>& ours,
                                      const QList<Item>& theirs) {
    const auto byId = [](const QList<Item>& items) {
        QHash<QUuid, const Item*> found;
        for (const Item& item : items)
            found.insert(Form::id(item), &item);
        return found;
    };
    const auto inBase = byId(base);
    const auto inOurs = byId(ours);
    const auto inTheirs = byId(theirs);
    const auto isAsItWas = [&inBase](const Item& item) {
        const Item* before = inBase.value(Form::id(item));
        return before && Form::areAlike(*before, item);
    };
    QList<Item> merged;
    for (const Item& item : ours) {
        const Item* other = inTheirs.value(Form::id(item));
        if (!other && !isAsItWas(item))
            merged.append(item);
        else if (other)
            merged.append(isAsItWas(item)     ? *other
                          : isAsItWas(*other) ? item
                                              : Form::winner(item, *other));
    }
    for (const Item& item : theirs) {
        if (!inOurs.contains(Form::id(item)) && !isAsItWas(item))
            merged.append(item);
    }
    return merged;
}

/// Stores `ours`, whose text is `text`, under `key`, with the changes that another process has made
/// since `kept`, and gives what is stored now. Nothing where the disk refused.
template <typename Form, typename Item>
[[nodiscard]] std::optional<KeptList<Item>>
storedOver(const KeptList<Item>& kept, const QList<Item>& ours, const QByteArray& text,
           UserDefaults& defaults, const QString& key) {
    KeptList<Item> next;
    const bool isStored = defaults.update(key, [&](const std::optional<DefaultsValue>& present) {
        next = {ours, text};
        const QByteArray* bytes = present ? std::get_if<QByteArray>(&*present) : nullptr;
        const auto theirs = bytes && *bytes != kept.json ? Form::decoded(*bytes) : std::nullopt;
        if (theirs) {
            const QList<Item> merged = mergedLists<Form>(kept.items, ours, *theirs);
            if (const auto mergedText = Form::encoded(merged))
                next = {merged, *mergedText};
        }
        return DefaultsValue(next.json);
    });
    return isStored ? std::optional(std::move(next)) : std::nullopt;
}

} // namespace dropshade
