// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "KeyboardShortcuts/Shortcut.h"
#include "platform/KeyboardLayout.h"

#include <QList>

namespace dropshade {

/// An item of the program's own menus with the keys that choose it.
struct MenuKeys {
    QString title;
    /// A character; a capital stands for the key together with Shift.
    QString key;
    std::uint32_t carbonModifiers = 0;
};

/// The Edit menu, whose commands the text fields of every window follow. It is nowhere to be seen,
/// and keeps its keys: those of this desktop, and those of the desktops that shortcuts are synced
/// with, where Command takes the place of Control.
[[nodiscard]] QList<MenuKeys> editMenuKeys();

/// The first item that the shortcut chooses, or nothing.
[[nodiscard]] const MenuKeys* menuItemOf(const Shortcut& shortcut, const KeyboardLayout& layout,
                                         const QList<MenuKeys>& items);

} // namespace dropshade
