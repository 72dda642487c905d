// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "KeyboardShortcuts/KeyboardShortcuts.h"

class QAction;

namespace dropshade {

/// Shows the name's shortcut on a row of a menu, and keeps it true until the row goes or this is
/// called anew; with no name, the row shows none. `shortcuts` must outlive the row.
void setShortcut(QAction& row, KeyboardShortcuts& shortcuts,
                 const std::optional<ShortcutName>& name);

/// What a row shows at its end in place of Qt's own text for its shortcut.
void setKeyText(QAction& row, const QString& text);
[[nodiscard]] QString keyText(const QAction& row);

} // namespace dropshade
