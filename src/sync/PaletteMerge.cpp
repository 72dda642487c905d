// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "sync/PaletteMerge.h"

#include <QSet>

#include <algorithm>

namespace dropshade {
namespace {

using Merged = QHash<QUuid, MergedPalette>;

/// Of each palette the copy that wins, without the deleted ones.
Merged winners(const PaletteSides& sides) {
    Merged merged;
    for (const PaletteStamp& stamp : sides.local)
        merged.insert(stamp.id, {stamp, PaletteSide::Local});
    for (auto remote = sides.remote.cbegin(); remote != sides.remote.cend(); ++remote) {
        const auto local = merged.constFind(remote.key());
        if (local == merged.cend() || remote.value() > local->stamp.lastModified)
            merged.insert(remote.key(), {{remote.key(), remote.value()}, PaletteSide::Remote});
    }
    for (auto deletion = sides.deletions.cbegin(); deletion != sides.deletions.cend(); ++deletion) {
        const auto winner = merged.constFind(deletion.key());
        if (winner != merged.cend() && deletion.value() >= winner->stamp.lastModified)
            merged.remove(deletion.key());
    }
    return merged;
}

/// Those of `ids` that are in the merged list, each at its first place.
QList<QUuid> filtered(const QList<QUuid>& ids, const Merged& merged) {
    QList<QUuid> kept;
    QSet<QUuid> seen;
    for (const QUuid& id : ids) {
        if (merged.contains(id) && !seen.contains(id)) {
            seen.insert(id);
            kept.append(id);
        }
    }
    return kept;
}

QList<QUuid> mergedOrder(const PaletteSides& sides, const Merged& merged) {
    const QList<QUuid> remote = filtered(sides.remoteOrder, merged);
    if (remote.size() == merged.size() && sides.remoteOrderMoment > 0.0)
        return remote;
    QList<QUuid> local;
    for (const PaletteStamp& stamp : sides.local)
        local.append(stamp.id);
    QList<QUuid> order = filtered(local, merged);
    const QSet<QUuid> placed(order.cbegin(), order.cend());
    const qsizetype placedCount = order.size();
    for (auto entry = merged.cbegin(); entry != merged.cend(); ++entry) {
        if (!placed.contains(entry.key()))
            order.append(entry.key());
    }
    // Any order would do, but one that is the same everywhere saves a push.
    std::sort(order.begin() + placedCount, order.end());
    return order;
}

} // namespace

QList<MergedPalette> mergedPalettes(const PaletteSides& sides) {
    const Merged merged = winners(sides);
    QList<MergedPalette> list;
    list.reserve(merged.size());
    for (const QUuid& id : mergedOrder(sides, merged))
        list.append(merged.value(id));
    return list;
}

} // namespace dropshade
