// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "widgets/AccessibleWindows.h"

#include "widgets/AlertWindow.h"
#include "widgets/FloatingWindow.h"
#include "widgets/Popover.h"
#include "widgets/Sheet.h"

#include <QAccessibleWidget>

#include <optional>

namespace dropshade {
namespace {

/// Without one, Qt takes a window that is a plain widget for a mere group of things.
std::optional<QAccessible::Role> roleOf(const QWidget& widget) {
    if (qobject_cast<const FloatingWindow*>(&widget))
        return QAccessible::Window;
    if (qobject_cast<const AlertWindow*>(&widget))
        return QAccessible::AlertMessage;
    if (qobject_cast<const Popover*>(&widget) || qobject_cast<const Sheet*>(&widget))
        return QAccessible::Dialog;
    return std::nullopt;
}

QAccessibleInterface* makeAccessible(const QString&, QObject* object) {
    auto* widget = qobject_cast<QWidget*>(object);
    const auto role = widget ? roleOf(*widget) : std::nullopt;
    return role ? new QAccessibleWidget(widget, *role) : nullptr;
}

} // namespace

void installAccessibleWindows() {
    // The factories are a list: a second entry would never be asked.
    QAccessible::removeFactory(makeAccessible);
    QAccessible::installFactory(makeAccessible);
}

} // namespace dropshade
