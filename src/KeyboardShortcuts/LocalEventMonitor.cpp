// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "KeyboardShortcuts/LocalEventMonitor.h"

#include "platform/ModifierKeys.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QWindow>

#include <utility>

namespace dropshade {

LocalEventMonitor::LocalEventMonitor(const KeyboardLayout& layout, Callback callback)
    : m_layout(layout), m_callback(std::move(callback)) {
    // Menus that are already open count as well.
    const auto windows = QGuiApplication::topLevelWindows();
    for (QWindow* window : windows) {
        if (window->isVisible() && window->type() == Qt::Popup)
            menuDidOpen(window);
    }
    qGuiApp->installEventFilter(this);
}

bool LocalEventMonitor::eventFilter(QObject* watched, QEvent* event) {
    // Each event passes here for its window before it does for anything in that.
    if (!watched->isWindowType())
        return false;
    const auto* window = static_cast<QWindow*>(watched);
    switch (event->type()) {
    case QEvent::Show:
        if (window->type() == Qt::Popup)
            menuDidOpen(watched);
        return false;
    case QEvent::Hide:
        menuDidClose(watched);
        return false;
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
        return m_isStarted && takesKey(*static_cast<QKeyEvent*>(event));
    default:
        return false;
    }
}

void LocalEventMonitor::menuDidOpen(QObject* window) {
    const bool wasOpen = isMenuOpen();
    m_openMenus.insert(window);
    connect(window, &QObject::destroyed, this, &LocalEventMonitor::menuDidClose,
            Qt::UniqueConnection);
    if (!wasOpen)
        Q_EMIT menuDidBeginTracking();
}

void LocalEventMonitor::menuDidClose(QObject* window) {
    if (m_openMenus.remove(window) && !isMenuOpen()) {
        m_takenKeys.clear();
        Q_EMIT menuDidEndTracking();
    }
}

bool LocalEventMonitor::takesKey(const QKeyEvent& event) {
    const auto keyCode = m_layout.keyCode(event.nativeScanCode());
    if (!keyCode)
        return false;
    if (event.isAutoRepeat())
        return m_takenKeys.contains(*keyCode);
    if (event.type() == QEvent::KeyPress) {
        const Shortcut shortcut = Shortcut::ofEvent(*keyCode, cocoaFlags(event.modifiers()));
        if (!m_callback(KeyEventType::KeyDown, shortcut))
            return false;
        m_takenKeys.insert(*keyCode, shortcut);
        return true;
    }
    const auto taken = m_takenKeys.constFind(*keyCode);
    if (taken == m_takenKeys.constEnd())
        return false;
    const Shortcut shortcut = *taken;
    m_takenKeys.erase(taken);
    m_callback(KeyEventType::KeyUp, shortcut);
    return true;
}

} // namespace dropshade
