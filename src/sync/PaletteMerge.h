// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/ReferenceTime.h"

#include <QHash>
#include <QList>
#include <QUuid>

namespace dropshade {

/// A palette as far as a merge must know it.
struct PaletteStamp {
    QUuid id;
    ReferenceTime lastModified;

    friend bool operator==(const PaletteStamp&, const PaletteStamp&) = default;
};

enum class PaletteSide { Local, Remote };

/// A palette of the merged list, and whose copy of it is taken.
struct MergedPalette {
    PaletteStamp stamp;
    PaletteSide side = PaletteSide::Local;
};

/// What two sides know of the palettes.
struct PaletteSides {
    QList<PaletteStamp> local;
    QHash<QUuid, ReferenceTime> remote;
    QHash<QUuid, ReferenceTime> deletions;
    /// The ids in the order of the machine that pushed last.
    QList<QUuid> remoteOrder;
    /// Seconds since 1970 of that push; 0 where there was none.
    double remoteOrderMoment = 0.0;
};

/// The list that both sides end up with: of each palette the later copy, on equal moments the local
/// one, unless it was deleted then or later. In the remote order where that covers every palette,
/// else in the local one with the others behind, by id.
[[nodiscard]] QList<MergedPalette> mergedPalettes(const PaletteSides& sides);

} // namespace dropshade
