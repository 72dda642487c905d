// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "widgets/FrontWindow.h"

#include <QApplication>
#include <QWidget>

#include <algorithm>

namespace dropshade {
namespace {

/// The icon in the tray and what floats for a moment are windows to Qt, too.
bool canHost(const QWidget* widget) {
    const Qt::WindowFlags flags = widget->windowFlags();
    const Qt::WindowType type = widget->windowType();
    return widget->isVisible() && type != Qt::Popup && type != Qt::ToolTip &&
           !flags.testFlag(Qt::X11BypassWindowManagerHint);
}

} // namespace

QWidget* frontWindow() {
    QWidget* const active = QApplication::activeWindow();
    if (active && canHost(active))
        return active;
    const QWidgetList windows = QApplication::topLevelWidgets();
    const auto found = std::find_if(windows.begin(), windows.end(), canHost);
    return found == windows.end() ? nullptr : *found;
}

} // namespace dropshade
