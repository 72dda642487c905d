// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/linux/FrontWindow.h"

#include <QGuiApplication>
#include <QWidget>
#include <QWindow>

#include <algorithm>

namespace dropshade {
namespace {

bool canHost(const QWindow* window) {
    const Qt::WindowType type = window->type();
    return window->isVisible() &&
           (type == Qt::Window || type == Qt::Dialog || type == Qt::Sheet || type == Qt::Tool);
}

QWindow* frontWindow() {
    QWindow* const focused = QGuiApplication::focusWindow();
    if (focused && canHost(focused))
        return focused;
    const QWindowList windows = QGuiApplication::topLevelWindows();
    const auto found = std::find_if(windows.begin(), windows.end(), canHost);
    return found == windows.end() ? nullptr : *found;
}

} // namespace

void showOverFront(QWidget& dialog) {
    QWindow* const host = frontWindow();
    dialog.setWindowModality(host ? Qt::WindowModal : Qt::ApplicationModal);
    static_cast<void>(dialog.winId()); // It has a window from here on.
    dialog.windowHandle()->setTransientParent(host);
    dialog.show();
    dialog.raise();
    dialog.activateWindow();
}

} // namespace dropshade
