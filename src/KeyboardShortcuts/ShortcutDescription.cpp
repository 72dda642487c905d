// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "KeyboardShortcuts/ShortcutDescription.h"

#include "KeyboardShortcuts/SpecialKey.h"
#include "platform/ModifierKeys.h"

#include <QList>

namespace dropshade {

namespace {

QString keyText(const Shortcut& shortcut, const KeyboardLayout& layout) {
    if (const SpecialKeyRow* special = specialKey(shortcut.carbonKeyCode))
        return symbol(*special);
    const QString character = layout.character(shortcut.carbonKeyCode);
    if (character.isEmpty())
        return QString(QChar::ReplacementCharacter);
    // Some letters have no capital of their own: that of the sharp s would be two letters.
    const QString capital = character.toUpper();
    return capital.size() == character.size() ? capital : character;
}

} // namespace

QString description(const Shortcut& shortcut, const KeyboardLayout& layout) {
    QString text;
    for (const ModifierKey& key : modifierKeys) {
        if ((shortcut.carbonModifiers & key.carbonBit) != 0)
            text += QString::fromUtf16(key.symbol);
    }
    return text + keyText(shortcut, layout);
}

QKeySequence keyEquivalent(const Shortcut& shortcut, const KeyboardLayout& layout) {
    const Qt::KeyboardModifiers modifiers = qtModifiers(shortcut.carbonModifiers);
    if (const SpecialKeyRow* special = specialKey(shortcut.carbonKeyCode))
        return QKeyCombination(modifiers | special->qtModifier, special->qt);
    const auto characters = layout.character(shortcut.carbonKeyCode).toUpper().toUcs4();
    // Qt numbers the keys of characters by these.
    return characters.size() == 1
               ? QKeySequence(QKeyCombination(modifiers, static_cast<Qt::Key>(characters.first())))
               : QKeySequence();
}

} // namespace dropshade
