// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/linux/PortalTrigger.h"

#include <xkbcommon/xkbcommon.h>

#include <algorithm>
#include <array>
#include <utility>

namespace dropshade {

namespace {

constexpr std::array<std::pair<Qt::KeyboardModifier, const char*>, 4> modifierNames{{
    {Qt::ControlModifier, "CTRL"},
    {Qt::AltModifier, "ALT"},
    {Qt::ShiftModifier, "SHIFT"},
    {Qt::MetaModifier, "LOGO"},
}};

/// The keys that make no character.
constexpr std::array<std::pair<Qt::Key, xkb_keysym_t>, 16> keysyms{{
    {Qt::Key_Return, XKB_KEY_Return},
    {Qt::Key_Enter, XKB_KEY_KP_Enter},
    {Qt::Key_Backspace, XKB_KEY_BackSpace},
    {Qt::Key_Delete, XKB_KEY_Delete},
    {Qt::Key_Escape, XKB_KEY_Escape},
    {Qt::Key_Tab, XKB_KEY_Tab},
    {Qt::Key_Help, XKB_KEY_Help},
    {Qt::Key_Clear, XKB_KEY_Clear},
    {Qt::Key_Home, XKB_KEY_Home},
    {Qt::Key_End, XKB_KEY_End},
    {Qt::Key_PageUp, XKB_KEY_Page_Up},
    {Qt::Key_PageDown, XKB_KEY_Page_Down},
    {Qt::Key_Left, XKB_KEY_Left},
    {Qt::Key_Right, XKB_KEY_Right},
    {Qt::Key_Up, XKB_KEY_Up},
    {Qt::Key_Down, XKB_KEY_Down},
}};

/// The keys of the keypad have symbols of their own.
constexpr std::array<std::pair<Qt::Key, xkb_keysym_t>, 6> keypadKeysyms{{
    {Qt::Key_Period, XKB_KEY_KP_Decimal},
    {Qt::Key_Slash, XKB_KEY_KP_Divide},
    {Qt::Key_Equal, XKB_KEY_KP_Equal},
    {Qt::Key_Minus, XKB_KEY_KP_Subtract},
    {Qt::Key_Asterisk, XKB_KEY_KP_Multiply},
    {Qt::Key_Plus, XKB_KEY_KP_Add},
}};

template <std::size_t size>
xkb_keysym_t found(const std::array<std::pair<Qt::Key, xkb_keysym_t>, size>& rows, Qt::Key key) {
    const auto* row = std::find_if(rows.begin(), rows.end(),
                                   [key](const auto& each) { return each.first == key; });
    return row == rows.end() ? xkb_keysym_t(XKB_KEY_NoSymbol) : row->second;
}

xkb_keysym_t keysymOf(Qt::Key key, bool isOnKeypad) {
    if (isOnKeypad && key >= Qt::Key_0 && key <= Qt::Key_9)
        return XKB_KEY_KP_0 + static_cast<xkb_keysym_t>(key - Qt::Key_0);
    if (isOnKeypad && found(keypadKeysyms, key) != XKB_KEY_NoSymbol)
        return found(keypadKeysyms, key);
    if (key >= Qt::Key_F1 && key <= Qt::Key_F35)
        return XKB_KEY_F1 + static_cast<xkb_keysym_t>(key - Qt::Key_F1);
    // Qt numbers the keys of characters by their capitals, where X names them by what they make.
    if (key < Qt::Key_Escape)
        return xkb_utf32_to_keysym(QChar::toLower(static_cast<char32_t>(key)));
    return found(keysyms, key);
}

} // namespace

QString portalTrigger(const QKeySequence& keys) {
    if (keys.isEmpty())
        return {};
    const QKeyCombination combination = keys[0];
    const Qt::KeyboardModifiers modifiers = combination.keyboardModifiers();
    const xkb_keysym_t keysym = keysymOf(combination.key(), modifiers.testFlag(Qt::KeypadModifier));
    std::array<char, 64> name{};
    if (keysym == XKB_KEY_NoSymbol || xkb_keysym_get_name(keysym, name.data(), name.size()) <= 0)
        return {};
    QString trigger;
    for (const auto& [modifier, modifierName] : modifierNames) {
        if (modifiers.testFlag(modifier))
            trigger += QLatin1String(modifierName) + u'+';
    }
    return trigger + QLatin1String(name.data());
}

} // namespace dropshade
