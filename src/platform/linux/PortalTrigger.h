// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QKeySequence>
#include <QString>

namespace dropshade {

/// The first combination of `keys` as the portal reads it, such as "CTRL+SHIFT+a": the triggers of
/// freedesktop.org's shortcuts, version 0.1, with the names of X's key symbols. Empty for a key
/// without one.
[[nodiscard]] QString portalTrigger(const QKeySequence& keys);

} // namespace dropshade
