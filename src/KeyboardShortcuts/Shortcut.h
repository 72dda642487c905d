// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QHashFunctions>
#include <QString>

#include <cstdint>
#include <optional>

namespace dropshade {

/// A key with modifiers, as it is stored: the key by its virtual key code, which stands for a place
/// on the keyboard, so that it means the same key on every machine; the modifiers in Carbon's bits
/// (`ModifierKeys.h`).
struct Shortcut {
    std::uint32_t carbonKeyCode = 0;
    std::uint32_t carbonModifiers = 0;

    /// The combination of a key event: of its modifiers those of the table but Function, which
    /// belongs to the key and not to the user's intent.
    [[nodiscard]] static Shortcut ofEvent(std::uint32_t keyCode, std::uint32_t cocoaFlags);

    /// The JSON text of a shortcut; nothing for any other text, or where a field is missing or is
    /// no 32-bit unsigned integer.
    [[nodiscard]] static std::optional<Shortcut> fromJson(const QString& text);
    [[nodiscard]] QString toJson() const;

    friend bool operator==(const Shortcut&, const Shortcut&) = default;
};

[[nodiscard]] inline std::size_t qHash(const Shortcut& shortcut, std::size_t seed = 0) {
    return qHashMulti(seed, shortcut.carbonKeyCode, shortcut.carbonModifiers);
}

} // namespace dropshade
