// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/UserDefaults.h"

#include <QSet>
#include <QUuid>

namespace dropshade {

// The palettes that show their header only, under "collapsedPaletteIds". What stands there and
// couldn't be read is amended as soon as it can be.

/// Whatever in the stored list is an id.
[[nodiscard]] QSet<QUuid> storedCollapsedIds(const UserDefaults& defaults);

/// Stores these in place of any others.
void replaceCollapsedIds(UserDefaults& defaults, const QSet<QUuid>& ids);

/// Adds these to the stored ones, or takes them out.
void amendCollapsedIds(UserDefaults& defaults, const QSet<QUuid>& ids, bool collapsed);

/// Stores these where the key has never been written.
void beginCollapsedIds(UserDefaults& defaults, const QSet<QUuid>& ids);

} // namespace dropshade
