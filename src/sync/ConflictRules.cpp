// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "sync/ConflictRules.h"

#include "palettes/PaletteJson.h"
#include "sync/CloudPalettes.h"
#include "sync/SyncValueCodec.h"

#include <algorithm>

namespace dropshade {
namespace {

using Value = std::optional<CloudValue>;

std::optional<ReferenceTime> modified(const QUuid& id, const Value& value, ReferenceTime now) {
    const auto json = CloudPalettes::text(value);
    const auto palette = json ? decodedPalette(*json, now) : std::nullopt;
    return palette && palette->id() == id ? std::optional(palette->lastModified()) : std::nullopt;
}

bool isDeleted(const QUuid& id, ReferenceTime lastModified, const QList<Tombstone>& deletions) {
    return std::any_of(deletions.cbegin(), deletions.cend(), [&](const Tombstone& tombstone) {
        return tombstone.id == id && tombstone.deletedAt >= lastModified;
    });
}

Value laterPalette(const QUuid& id, const CloudConflict& conflict,
                   const QList<Tombstone>& deletions, ReferenceTime now) {
    const auto ours = modified(id, conflict.ours, now);
    const auto theirs = modified(id, conflict.theirs, now);
    if (!ours && !theirs)
        return conflict.theirs;
    const bool areOursTaken = ours && (!theirs || *ours > *theirs);
    const bool wasRemoved = !conflict.ours || !conflict.theirs;
    if (wasRemoved && isDeleted(id, areOursTaken ? *ours : *theirs, deletions))
        return std::nullopt;
    return areOursTaken ? conflict.ours : conflict.theirs;
}

Value allTombstones(const CloudConflict& conflict) {
    const auto listOf = [](const Value& value) {
        const auto json = CloudPalettes::text(value);
        return json ? decodedTombstones(*json) : std::nullopt;
    };
    const auto ours = listOf(conflict.ours);
    const auto theirs = listOf(conflict.theirs);
    if (!ours || !theirs)
        return ours ? conflict.ours : conflict.theirs;
    // Theirs first: where they have all of ours, nothing needs to be written.
    const QList<Tombstone> united = unitedTombstones(*theirs, *ours);
    const auto json = united == *theirs ? std::nullopt : encodedTombstones(united);
    return json ? Value(compressedValue(*json)) : conflict.theirs;
}

} // namespace

std::optional<CloudValue> resolvedConflict(const CloudConflict& conflict,
                                           const QList<Tombstone>& deletions, ReferenceTime now) {
    if (conflict.key == cloudKeys::tombstones)
        return allTombstones(conflict);
    if (const auto id = cloudKeys::paletteId(conflict.key))
        return laterPalette(*id, conflict, deletions, now);
    return conflict.areOursLater && !conflict.isFirstContact ? conflict.ours : conflict.theirs;
}

} // namespace dropshade
