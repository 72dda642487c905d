// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "KeyboardShortcuts/ShortcutRow.h"

#include "KeyboardShortcuts/ShortcutDescription.h"

#include <QAction>
#include <QVariant>

namespace dropshade {

namespace {

constexpr const char* keyTextProperty = "keyText";
/// The object on the row that follows the shortcut.
const QString followerName = QStringLiteral("shortcutFollower");

void showShortcut(QAction& row, const KeyboardShortcuts& shortcuts, const ShortcutName& name) {
    const auto shortcut = shortcuts.getShortcut(name);
    const KeyboardLayout& layout = shortcuts.layout();
    setKeyText(row, shortcut ? description(*shortcut, layout) : QString());
    row.setShortcut(shortcut ? keyEquivalent(*shortcut, layout) : QKeySequence());
}

} // namespace

void setShortcut(QAction& row, KeyboardShortcuts& shortcuts,
                 const std::optional<ShortcutName>& name) {
    delete row.findChild<QObject*>(followerName, Qt::FindDirectChildrenOnly);
    if (!name) {
        setKeyText(row, QString());
        row.setShortcut(QKeySequence());
        return;
    }
    auto* follower = new QObject(&row);
    follower->setObjectName(followerName);
    QObject::connect(&shortcuts, &KeyboardShortcuts::shortcutByNameDidChange, follower,
                     [&row, &shortcuts, name = *name](const ShortcutName& changed) {
                         if (changed.rawValue == name.rawValue)
                             showShortcut(row, shortcuts, name);
                     });
    showShortcut(row, shortcuts, *name);
}

void setKeyText(QAction& row, const QString& text) {
    row.setProperty(keyTextProperty, text);
}

QString keyText(const QAction& row) {
    return row.property(keyTextProperty).toString();
}

} // namespace dropshade
