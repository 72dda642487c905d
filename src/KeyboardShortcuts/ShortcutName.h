// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "KeyboardShortcuts/Shortcut.h"

namespace dropshade {

/// What a shortcut is bound to.
struct ShortcutName {
    QString rawValue;
    /// What the name has until the user chooses; see `KeyboardShortcuts::declare`.
    std::optional<Shortcut> defaultShortcut = std::nullopt;

    friend bool operator==(const ShortcutName&, const ShortcutName&) = default;
};

[[nodiscard]] inline std::size_t qHash(const ShortcutName& name, std::size_t seed = 0) {
    return qHash(name.rawValue, seed);
}

/// Where the name's shortcut is stored: a string of JSON; or false, where the user has removed the
/// shortcut of a name with a default.
[[nodiscard]] inline QString storageKey(const ShortcutName& name) {
    return QStringLiteral("KeyboardShortcuts_") + name.rawValue;
}

/// The actions that a shortcut can be bound to; none has one until the user records it.
namespace shortcutNames {

inline const ShortcutName pickColor{QStringLiteral("pickColor")};
inline const ShortcutName checkContrast{QStringLiteral("checkContrast")};
inline const ShortcutName palettes{QStringLiteral("palettes")};
inline const ShortcutName convert{QStringLiteral("convert")};

} // namespace shortcutNames

} // namespace dropshade
