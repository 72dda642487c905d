// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "color/SRGBColor.h"
#include "platform/UserDefaults.h"

#include <QList>
#include <QUuid>

namespace dropshade {

/// A colour that the user sampled or copied; its components are as they were, unrounded.
struct RecentColor {
    QUuid id;
    double red = 0.0;
    double green = 0.0;
    double blue = 0.0;
    double alpha = 1.0;

    /// The components as a colour.
    [[nodiscard]] SRGBColor color() const { return SRGBColor(red, green, blue, alpha); }

    friend bool operator==(const RecentColor&, const RecentColor&) = default;
};

// The list is kept nowhere but in the store: it is read and written at each use, newest first.

/// The stored list; empty where there is none or it can't be read.
[[nodiscard]] QList<RecentColor> loadRecentColors(const UserDefaults& defaults);

/// Stores the front of the list, as much of it as `recentColorsLimit` allows. A list that has no
/// form in JSON leaves the store as it was.
void saveRecentColors(UserDefaults& defaults, const QList<RecentColor>& colors);

/// Puts the colour in front, under a new id, also where the list has it already.
void recordRecentColor(UserDefaults& defaults, const SRGBColor& color);

/// Stores the limit, pinned to 0 to 50, and cuts the stored list to it.
void setRecentColorsLimit(UserDefaults& defaults, int limit);

} // namespace dropshade
