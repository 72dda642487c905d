// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "KeyboardShortcuts/ShortcutName.h"
#include "platform/ApplicationInstance.h"

#include <QList>

namespace dropshade {

/// One thing that a key can be bound to.
struct ShortcutAction {
    ShortcutName name;
    ApplicationAction action;
    /// In the user's language.
    QString title;
};

/// All of them, in the order in which the user sees them.
[[nodiscard]] QList<ShortcutAction> shortcutActions();

} // namespace dropshade
