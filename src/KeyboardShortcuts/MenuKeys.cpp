// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "KeyboardShortcuts/MenuKeys.h"

#include "platform/ModifierKeys.h"

#include <QCoreApplication>

#include <algorithm>

namespace dropshade {
namespace {

bool isChosenBy(const MenuKeys& item, const QString& character, std::uint32_t modifiers) {
    QString key = item.key;
    std::uint32_t mask = item.carbonModifiers;
    if ((modifiers & shiftKey) != 0 && key != key.toLower()) {
        key = key.toLower();
        mask |= shiftKey;
    }
    return key == character && mask == modifiers;
}

} // namespace

QList<MenuKeys> editMenuKeys() {
    QList<MenuKeys> items;
    const auto add = [&items](const QString& title, const char* key) {
        for (const std::uint32_t modifier : {controlKey, commandKey})
            items.append({title, QLatin1String(key), modifier});
    };
    //: Edit menu item
    add(QCoreApplication::translate("EditMenu", "Cut", "Edit menu item"), "x");
    //: Edit menu item
    add(QCoreApplication::translate("EditMenu", "Copy", "Edit menu item"), "c");
    //: Edit menu item
    add(QCoreApplication::translate("EditMenu", "Paste", "Edit menu item"), "v");
    //: Edit menu item
    add(QCoreApplication::translate("EditMenu", "Select All", "Edit menu item"), "a");
    return items;
}

const MenuKeys* menuItemOf(const Shortcut& shortcut, const KeyboardLayout& layout,
                           const QList<MenuKeys>& items) {
    const QString character = layout.character(shortcut.carbonKeyCode);
    if (character.isEmpty())
        return nullptr;
    const auto found = std::find_if(items.begin(), items.end(), [&](const MenuKeys& item) {
        return isChosenBy(item, character, shortcut.carbonModifiers);
    });
    return found == items.end() ? nullptr : &*found;
}

} // namespace dropshade
