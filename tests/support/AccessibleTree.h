// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QAccessible>
#include <QStringList>

namespace dropshade {

inline bool isControl(QAccessible::Role role) {
    return role == QAccessible::Button || role == QAccessible::CheckBox ||
           role == QAccessible::RadioButton || role == QAccessible::EditableText ||
           role == QAccessible::Slider || role == QAccessible::ComboBox;
}

/// Every visible control below `root` as "role name", depth first; "?" where it has no name.
inline void collectControls(QAccessibleInterface* root, QStringList& controls) {
    if (!root || root->state().invisible)
        return;
    if (isControl(root->role())) {
        const QString name = root->text(QAccessible::Name);
        controls.append(QString::number(root->role()) + u' ' +
                        (name.isEmpty() ? QStringLiteral("?") : name));
    }
    for (int index = 0; index < root->childCount(); ++index)
        collectControls(root->child(index), controls);
}

inline QStringList controlsOf(QObject* root) {
    QStringList controls;
    collectControls(QAccessible::queryAccessibleInterface(root), controls);
    return controls;
}

} // namespace dropshade
