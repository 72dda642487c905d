// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "app/ShortcutMenu.h"

#include "KeyboardShortcuts/ShortcutRow.h"

#include <QKeyEvent>
#include <QStyleOption>

namespace dropshade {

ShortcutMenu::ShortcutMenu(const Look& look) : Menu(look) {}

Menu* ShortcutMenu::addSubmenu(const QString& title, Icon icon) {
    Menu* submenu = Menu::addSubmenu(title, icon);
    submenu->installEventFilter(this);
    return submenu;
}

void ShortcutMenu::initStyleOption(QStyleOptionMenuItem* option, const QAction* action) const {
    Menu::initStyleOption(option, action);
    if (!action || action->isSeparator())
        return;
    const QString keys = keyText(*action);
    option->text = keys.isEmpty() ? action->text() : action->text() + u'\t' + keys;
}

void ShortcutMenu::keyPressEvent(QKeyEvent* event) {
    if (!triggerRow(*event))
        Menu::keyPressEvent(event);
}

bool ShortcutMenu::eventFilter(QObject* submenu, QEvent* event) {
    if (event->type() == QEvent::KeyPress && triggerRow(*static_cast<QKeyEvent*>(event)))
        return true;
    return Menu::eventFilter(submenu, event);
}

bool ShortcutMenu::triggerRow(const QKeyEvent& event) {
    const QKeySequence pressed(event.keyCombination());
    const auto rows = actions();
    for (QAction* row : rows) {
        if (row->shortcut().isEmpty() || row->shortcut() != pressed || !row->isEnabled())
            continue;
        close();
        row->trigger();
        return true;
    }
    return false;
}

QString rowText(const QString& text) {
    QString shown = text;
    return shown.replace(u'&', QStringLiteral("&&")).replace(u'\t', u' ');
}

} // namespace dropshade
