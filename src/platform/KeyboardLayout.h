// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <optional>

namespace dropshade {

/// What the keys of the user's keyboard mean. Keys are named by their virtual key codes, which
/// stand for a place on the keyboard.
class KeyboardLayout {
public:
    virtual ~KeyboardLayout() = default;

    /// The character that the key makes without modifiers, in lower case; a dead key makes its
    /// accent. Where the layout in use has no Latin letters, such as a Greek one, the user's first
    /// layout that has them counts. Empty where the key makes none.
    [[nodiscard]] virtual QString character(quint32 keyCode) const = 0;

    /// The virtual key code of `QKeyEvent::nativeScanCode`; nothing for a key that has none.
    [[nodiscard]] virtual std::optional<quint32> keyCode(quint32 nativeScanCode) const = 0;
};

} // namespace dropshade
