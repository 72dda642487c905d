// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "KeyboardShortcuts/ShortcutActions.h"

#include <QCoreApplication>

namespace dropshade {

QList<ShortcutAction> shortcutActions() {
    return {
        {shortcutNames::pickColor, ApplicationAction::QuickPick,
         //: Setting: the shortcut of a command
         QCoreApplication::translate("KeyboardShortcuts", "Quick Pick")},
        {shortcutNames::convert, ApplicationAction::Convert,
         //: Setting: the shortcut of a window
         QCoreApplication::translate("KeyboardShortcuts", "Color Picker")},
        {shortcutNames::palettes, ApplicationAction::Palettes,
         //: Setting: the shortcut of a window
         QCoreApplication::translate("KeyboardShortcuts", "Palettes")},
        {shortcutNames::checkContrast, ApplicationAction::Contrast,
         //: Setting: the shortcut of a window
         QCoreApplication::translate("KeyboardShortcuts", "Check Contrast")},
    };
}

} // namespace dropshade
