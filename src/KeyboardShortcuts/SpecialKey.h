// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <cstdint>
#include <optional>
#include <span>

namespace dropshade {

/// The keys that are shown by a symbol and not by what they type.
enum class SpecialKey {
    Return,
    Delete,
    DeleteForward,
    End,
    Escape,
    Help,
    Home,
    Space,
    Tab,
    PageUp,
    PageDown,
    UpArrow,
    RightArrow,
    DownArrow,
    LeftArrow,
    F1,
    F2,
    F3,
    F4,
    F5,
    F6,
    F7,
    F8,
    F9,
    F10,
    F11,
    F12,
    F13,
    F14,
    F15,
    F16,
    F17,
    F18,
    F19,
    F20,
    Keypad0,
    Keypad1,
    Keypad2,
    Keypad3,
    Keypad4,
    Keypad5,
    Keypad6,
    Keypad7,
    Keypad8,
    Keypad9,
    KeypadClear,
    KeypadDecimal,
    KeypadDivide,
    KeypadEnter,
    KeypadEquals,
    KeypadMinus,
    KeypadMultiply,
    KeypadPlus,
};

struct SpecialKeyRow {
    SpecialKey key;
    std::uint32_t keyCode; ///< The virtual key code, one of Carbon's `kVK_` constants.
    /// Nothing for the space bar, whose symbol is a word.
    const char16_t* symbol;
    Qt::Key qt;
    /// Qt tells the keys of the keypad by a modifier.
    Qt::KeyboardModifier qtModifier = Qt::NoModifier;
};

[[nodiscard]] std::span<const SpecialKeyRow> specialKeys();

/// Nothing for the code of a key that is shown by what it types.
[[nodiscard]] const SpecialKeyRow* specialKey(std::uint32_t keyCode);

/// What stands for the key where a shortcut is shown.
[[nodiscard]] QString symbol(const SpecialKeyRow& row);

} // namespace dropshade
