// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "app/PinnedColor.h"
#include "app/RecentColor.h"

namespace dropshade {

// What the status menu shows of the user's colours, as they are at the call.

struct RecentRow {
    QString title;
    RecentColor color;
};

/// The front of the stored list, as much of it as the settings allow, newest first. The text has
/// two decimals whatever the settings say: it is there to tell colours apart, not to be copied.
[[nodiscard]] QList<RecentRow> recentRows(const UserDefaults& defaults);

struct FavoriteRow {
    QString title;
    /// The title is the colour's own text, for want of a label.
    bool isValue;
    PinnedColor pin;
};

/// The favourites of one palette.
struct FavoriteGroup {
    QString title;
    QList<FavoriteRow> rows;
};

/// The pins by palette, in the order of each palette's first pin, and within it in the palette's
/// own order: by scale, by swatch, then by age. What the palette no longer has comes last.
[[nodiscard]] QList<FavoriteGroup> favoriteGroups(const QList<PinnedColor>& pins,
                                                  const QList<Palette>& palettes,
                                                  const UserDefaults& defaults);

/// The text, or, where it has more than 48 characters, its first 47 and an ellipsis. Characters are
/// those that a reader counts.
[[nodiscard]] QString cutTitle(const QString& text);

} // namespace dropshade
