// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/UserDefaults.h"

namespace dropshade {

/// Where an earlier build kept its preferences, under the user's home.
[[nodiscard]] QString legacyPreferencesPath(const QString& home);

/// Takes over the preferences of the earlier build from the property list at `path`, binary or XML,
/// but for those that are set already. This is tried once in the life of the store, whatever comes
/// of it: a file that is missing, is no dictionary or is junk gives nothing. While nobody can read
/// whether it was tried it is not.
void importLegacyPreferences(UserDefaults& defaults, const QString& path);

} // namespace dropshade
