// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <array>
#include <cstdint>

namespace dropshade {

/// A modifier of shortcuts, under the numbers of the desktop that their stored form comes from.
struct ModifierKey {
    std::uint32_t carbonBit; ///< In stored shortcuts.
    std::uint32_t cocoaFlag; ///< In that desktop's key events.
    Qt::KeyboardModifier qt; ///< In Qt's key events; `Qt::NoModifier` where they have none.
    const char16_t* symbol;
};

inline constexpr std::uint32_t commandKey = 0x100;
inline constexpr std::uint32_t shiftKey = 0x200;
inline constexpr std::uint32_t optionKey = 0x800;
inline constexpr std::uint32_t controlKey = 0x1000;
inline constexpr std::uint32_t functionKey = 0x20000;

/// All of them, in the order in which they are shown. Command is the Super key, Option is Alt.
inline constexpr std::array<ModifierKey, 5> modifierKeys{{
    {controlKey, 0x40000, Qt::ControlModifier, u"\u2303"},
    {optionKey, 0x80000, Qt::AltModifier, u"\u2325"},
    {shiftKey, 0x20000, Qt::ShiftModifier, u"\u21E7"},
    {commandKey, 0x100000, Qt::MetaModifier, u"\u2318"},
    {functionKey, 0x800000, Qt::NoModifier, u"\U0001F310\uFE0E"},
}};

// Each keeps the modifiers of the table and drops every other bit.

[[nodiscard]] constexpr std::uint32_t carbonModifiers(std::uint32_t cocoaFlags) {
    std::uint32_t bits = 0;
    for (const ModifierKey& key : modifierKeys)
        bits |= (cocoaFlags & key.cocoaFlag) != 0 ? key.carbonBit : 0;
    return bits;
}

[[nodiscard]] constexpr std::uint32_t cocoaFlags(std::uint32_t carbonModifiers) {
    std::uint32_t flags = 0;
    for (const ModifierKey& key : modifierKeys)
        flags |= (carbonModifiers & key.carbonBit) != 0 ? key.cocoaFlag : 0;
    return flags;
}

[[nodiscard]] constexpr std::uint32_t cocoaFlags(Qt::KeyboardModifiers modifiers) {
    std::uint32_t flags = 0;
    for (const ModifierKey& key : modifierKeys)
        flags |= modifiers.testAnyFlag(key.qt) ? key.cocoaFlag : 0;
    return flags;
}

[[nodiscard]] constexpr Qt::KeyboardModifiers qtModifiers(std::uint32_t carbonModifiers) {
    Qt::KeyboardModifiers modifiers;
    for (const ModifierKey& key : modifierKeys)
        modifiers |= (carbonModifiers & key.carbonBit) != 0 ? key.qt : Qt::NoModifier;
    return modifiers;
}

} // namespace dropshade
