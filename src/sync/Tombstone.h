// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/ReferenceTime.h"

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QUuid>

#include <optional>

namespace dropshade {

/// What tells the other machines that a palette was deleted and doesn't only lack.
struct Tombstone {
    QUuid id;
    /// When the deleting machine noticed.
    ReferenceTime deletedAt;

    friend bool operator==(const Tombstone&, const Tombstone&) = default;
};

/// Seconds after which a tombstone is forgotten: 90 days.
inline constexpr double tombstoneLifetime = 7'776'000.0;

/// Nothing where a moment is not finite.
[[nodiscard]] std::optional<QByteArray> encodedTombstones(const QList<Tombstone>& tombstones);
[[nodiscard]] std::optional<QList<Tombstone>> decodedTombstones(const QByteArray& json);

/// Those that are younger than their lifetime, in their order.
[[nodiscard]] QList<Tombstone> livingTombstones(const QList<Tombstone>& tombstones,
                                                ReferenceTime now);

/// All of both lists, ours first, each id once with its later moment.
[[nodiscard]] QList<Tombstone> unitedTombstones(const QList<Tombstone>& ours,
                                                const QList<Tombstone>& theirs);

/// Ends the process, as does any list of ids that are promised to be unique and aren't.
[[noreturn]] void endOnDuplicate(const QUuid& id);

/// When each palette was deleted. Ends the process where an id is there twice.
[[nodiscard]] QHash<QUuid, ReferenceTime> deletionMoments(const QList<Tombstone>& tombstones);

} // namespace dropshade
