// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "KeyboardShortcuts/Shortcut.h"
#include "platform/KeyboardLayout.h"

#include <QHash>
#include <QObject>
#include <QSet>

#include <functional>

class QKeyEvent;

namespace dropshade {

enum class KeyEventType { KeyDown, KeyUp };

/// Sees what comes to the program's own windows: when its menus and other popups open and close,
/// and, while it is started, the keys. A popup takes the keyboard, so that the desktop's own ways
/// of delivering hot keys stand still meanwhile.
class LocalEventMonitor : public QObject {
    Q_OBJECT

public:
    /// True takes the event away from the window that it was for. A key that goes up comes with the
    /// modifiers with which it went down, and only if that was taken.
    using Callback = std::function<bool(KeyEventType, const Shortcut&)>;

    LocalEventMonitor(const KeyboardLayout& layout, Callback callback);

    /// Begins and ends to pass the keys on. A key that repeats is passed on once.
    void start() { m_isStarted = true; }
    void stop() { m_isStarted = false; }

    [[nodiscard]] bool isMenuOpen() const { return !m_openMenus.isEmpty(); }

Q_SIGNALS:
    /// The first popup opens.
    void menuDidBeginTracking();
    /// The last one has closed.
    void menuDidEndTracking();

private:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void menuDidOpen(QObject* window);
    void menuDidClose(QObject* window);
    bool takesKey(const QKeyEvent& event);

    const KeyboardLayout& m_layout;
    Callback m_callback;
    QSet<QObject*> m_openMenus;
    /// What was taken at its press is taken at its release and in between. The modifiers may go up
    /// before the key does.
    QHash<quint32, Shortcut> m_takenKeys;
    bool m_isStarted = false;
};

} // namespace dropshade
