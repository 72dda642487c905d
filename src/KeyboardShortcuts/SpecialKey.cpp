// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "KeyboardShortcuts/SpecialKey.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace dropshade {

namespace {

/// In the order of the enumeration. A keypad key shows its character in a key cap.
constexpr std::array rows{
    SpecialKeyRow{SpecialKey::Return, 36, u"\u21A9", Qt::Key_Return},
    SpecialKeyRow{SpecialKey::Delete, 51, u"\u232B", Qt::Key_Backspace},
    SpecialKeyRow{SpecialKey::DeleteForward, 117, u"\u2326", Qt::Key_Delete},
    SpecialKeyRow{SpecialKey::End, 119, u"\u2198", Qt::Key_End},
    SpecialKeyRow{SpecialKey::Escape, 53, u"\u238B", Qt::Key_Escape},
    SpecialKeyRow{SpecialKey::Help, 114, u"?\u20DD", Qt::Key_Help},
    SpecialKeyRow{SpecialKey::Home, 115, u"\u2196", Qt::Key_Home},
    SpecialKeyRow{SpecialKey::Space, 49, nullptr, Qt::Key_Space},
    SpecialKeyRow{SpecialKey::Tab, 48, u"\u21E5", Qt::Key_Tab},
    SpecialKeyRow{SpecialKey::PageUp, 116, u"\u21DE", Qt::Key_PageUp},
    SpecialKeyRow{SpecialKey::PageDown, 121, u"\u21DF", Qt::Key_PageDown},
    SpecialKeyRow{SpecialKey::UpArrow, 126, u"\u2191", Qt::Key_Up},
    SpecialKeyRow{SpecialKey::RightArrow, 124, u"\u2192", Qt::Key_Right},
    SpecialKeyRow{SpecialKey::DownArrow, 125, u"\u2193", Qt::Key_Down},
    SpecialKeyRow{SpecialKey::LeftArrow, 123, u"\u2190", Qt::Key_Left},
    SpecialKeyRow{SpecialKey::F1, 122, u"F1", Qt::Key_F1},
    SpecialKeyRow{SpecialKey::F2, 120, u"F2", Qt::Key_F2},
    SpecialKeyRow{SpecialKey::F3, 99, u"F3", Qt::Key_F3},
    SpecialKeyRow{SpecialKey::F4, 118, u"F4", Qt::Key_F4},
    SpecialKeyRow{SpecialKey::F5, 96, u"F5", Qt::Key_F5},
    SpecialKeyRow{SpecialKey::F6, 97, u"F6", Qt::Key_F6},
    SpecialKeyRow{SpecialKey::F7, 98, u"F7", Qt::Key_F7},
    SpecialKeyRow{SpecialKey::F8, 100, u"F8", Qt::Key_F8},
    SpecialKeyRow{SpecialKey::F9, 101, u"F9", Qt::Key_F9},
    SpecialKeyRow{SpecialKey::F10, 109, u"F10", Qt::Key_F10},
    SpecialKeyRow{SpecialKey::F11, 103, u"F11", Qt::Key_F11},
    SpecialKeyRow{SpecialKey::F12, 111, u"F12", Qt::Key_F12},
    SpecialKeyRow{SpecialKey::F13, 105, u"F13", Qt::Key_F13},
    SpecialKeyRow{SpecialKey::F14, 107, u"F14", Qt::Key_F14},
    SpecialKeyRow{SpecialKey::F15, 113, u"F15", Qt::Key_F15},
    SpecialKeyRow{SpecialKey::F16, 106, u"F16", Qt::Key_F16},
    SpecialKeyRow{SpecialKey::F17, 64, u"F17", Qt::Key_F17},
    SpecialKeyRow{SpecialKey::F18, 79, u"F18", Qt::Key_F18},
    SpecialKeyRow{SpecialKey::F19, 80, u"F19", Qt::Key_F19},
    SpecialKeyRow{SpecialKey::F20, 90, u"F20", Qt::Key_F20},
    SpecialKeyRow{SpecialKey::Keypad0, 82, u"0\u20E3", Qt::Key_0, Qt::KeypadModifier},
    SpecialKeyRow{SpecialKey::Keypad1, 83, u"1\u20E3", Qt::Key_1, Qt::KeypadModifier},
    SpecialKeyRow{SpecialKey::Keypad2, 84, u"2\u20E3", Qt::Key_2, Qt::KeypadModifier},
    SpecialKeyRow{SpecialKey::Keypad3, 85, u"3\u20E3", Qt::Key_3, Qt::KeypadModifier},
    SpecialKeyRow{SpecialKey::Keypad4, 86, u"4\u20E3", Qt::Key_4, Qt::KeypadModifier},
    SpecialKeyRow{SpecialKey::Keypad5, 87, u"5\u20E3", Qt::Key_5, Qt::KeypadModifier},
    SpecialKeyRow{SpecialKey::Keypad6, 88, u"6\u20E3", Qt::Key_6, Qt::KeypadModifier},
    SpecialKeyRow{SpecialKey::Keypad7, 89, u"7\u20E3", Qt::Key_7, Qt::KeypadModifier},
    SpecialKeyRow{SpecialKey::Keypad8, 91, u"8\u20E3", Qt::Key_8, Qt::KeypadModifier},
    SpecialKeyRow{SpecialKey::Keypad9, 92, u"9\u20E3", Qt::Key_9, Qt::KeypadModifier},
    SpecialKeyRow{SpecialKey::KeypadClear, 71, u"\u2612\u20E3", Qt::Key_Clear, Qt::KeypadModifier},
    SpecialKeyRow{SpecialKey::KeypadDecimal, 65, u".\u20E3", Qt::Key_Period, Qt::KeypadModifier},
    SpecialKeyRow{SpecialKey::KeypadDivide, 75, u"/\u20E3", Qt::Key_Slash, Qt::KeypadModifier},
    SpecialKeyRow{SpecialKey::KeypadEnter, 76, u"\u21A9\u20E3", Qt::Key_Enter, Qt::KeypadModifier},
    SpecialKeyRow{SpecialKey::KeypadEquals, 81, u"=\u20E3", Qt::Key_Equal, Qt::KeypadModifier},
    SpecialKeyRow{SpecialKey::KeypadMinus, 78, u"-\u20E3", Qt::Key_Minus, Qt::KeypadModifier},
    SpecialKeyRow{SpecialKey::KeypadMultiply, 67, u"*\u20E3", Qt::Key_Asterisk, Qt::KeypadModifier},
    SpecialKeyRow{SpecialKey::KeypadPlus, 69, u"+\u20E3", Qt::Key_Plus, Qt::KeypadModifier},
};

} // namespace

std::span<const SpecialKeyRow> specialKeys() {
    return rows;
}

const SpecialKeyRow* specialKey(std::uint32_t keyCode) {
    const auto* found = std::find_if(rows.begin(), rows.end(),
                                     [keyCode](const auto& row) { return row.keyCode == keyCode; });
    return found == rows.end() ? nullptr : found;
}

QString symbol(const SpecialKeyRow& row) {
    if (row.symbol)
        return QString::fromUtf16(row.symbol);
    //: The space bar, where a key combination is shown
    QString word = QCoreApplication::translate("KeyboardShortcuts", "Space");
    word[0] = word[0].toUpper();
    return word;
}

} // namespace dropshade
