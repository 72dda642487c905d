// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "KeyboardShortcuts/ShortcutTexts.h"

#include <QCoreApplication>

namespace dropshade::shortcutTexts {

QString recordShortcut() {
    //: On an empty shortcut recorder
    return QCoreApplication::translate("KeyboardShortcuts", "Record Shortcut", "record_shortcut");
}

QString pressShortcut() {
    //: On a shortcut recorder that listens
    return QCoreApplication::translate("KeyboardShortcuts", "Press Shortcut", "press_shortcut");
}

QString usedByMenuItem(const QString& menuItem) {
    //: Alert of a shortcut recorder; %1 is the title of a menu item
    return QCoreApplication::translate("KeyboardShortcuts",
                                       "That shortcut belongs to the menu item “%1”.",
                                       "keyboard_shortcut_used_by_menu_item")
        .arg(menuItem);
}

QString usedBySystem() {
    //: Alert of a shortcut recorder
    return QCoreApplication::translate("KeyboardShortcuts",
                                       "The desktop or another program uses that shortcut already.",
                                       "keyboard_shortcut_used_by_system");
}

QString canBeChanged() {
    //: Second line of the alert that the desktop or another program uses a shortcut
    return QCoreApplication::translate(
        "KeyboardShortcuts",
        "Shortcuts of the desktop can be changed in its keyboard settings. Until then, this one "
        "may not reach Dropshade.",
        "keyboard_shortcuts_can_be_changed");
}

QString disallowed() {
    //: Alert of a shortcut recorder
    return QCoreApplication::translate("KeyboardShortcuts",
                                       "This desktop can’t give that shortcut to a program.",
                                       "keyboard_shortcut_disallowed");
}

QString forceUse() {
    //: Button of the alert that the desktop or another program uses a shortcut
    return QCoreApplication::translate("KeyboardShortcuts", "Use It All the Same",
                                       "force_use_shortcut");
}

QString ok() {
    //: Button of a shortcut recorder's alerts, which changes nothing
    return QCoreApplication::translate("KeyboardShortcuts", "OK", "ok");
}

} // namespace dropshade::shortcutTexts
