// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusArgument>
#include <QMetaType>
#include <QString>
#include <QVariantMap>

namespace dropshade {

/// An action and what is known of it, as the portal's GlobalShortcuts takes and gives them.
struct PortalShortcut {
    QString id;
    QVariantMap details;
};

inline QDBusArgument& operator<<(QDBusArgument& argument, const PortalShortcut& shortcut) {
    argument.beginStructure();
    argument << shortcut.id << shortcut.details;
    argument.endStructure();
    return argument;
}

inline const QDBusArgument& operator>>(const QDBusArgument& argument, PortalShortcut& shortcut) {
    argument.beginStructure();
    argument >> shortcut.id >> shortcut.details;
    argument.endStructure();
    return argument;
}

} // namespace dropshade

Q_DECLARE_METATYPE(dropshade::PortalShortcut)
