// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "KeyboardShortcuts/LocalEventMonitor.h"
#include "platform/HotKeyRegistrar.h"

#include <map>
#include <memory>

namespace dropshade {

/// The registrations with the desktop, and the switch-over that keeps shortcuts working while one
/// of the program's menus is open: the menu has the keyboard then, so the combinations are given
/// back to the desktop and the menu's own key events are watched.
class CarbonKeyboardShortcuts : public QObject {
    Q_OBJECT

public:
    using Action = std::function<void(const Shortcut&)>;

    /// `registrar` and `layout` must outlive this object.
    CarbonKeyboardShortcuts(HotKeyRegistrar& registrar, const KeyboardLayout& layout);
    ~CarbonKeyboardShortcuts() override;

    /// Holds the shortcut under a new id. A combination that can't be had is left out, with a line
    /// on the standard output.
    void registerShortcut(const Shortcut& shortcut, Action onKeyDown, Action onKeyUp);
    /// Gives up every registration of the shortcut.
    void unregister(const Shortcut& shortcut);
    /// What is held now, or waits for the end of a menu or for the switch.
    [[nodiscard]] QSet<Shortcut> shortcuts() const;

    [[nodiscard]] bool isAvailable() const { return m_registrar.isAvailable(); }

    /// `Registered` for what is held already and for what could be; nothing changes by it.
    [[nodiscard]] HotKeyRegistrar::Status statusOf(const Shortcut& shortcut);

    [[nodiscard]] bool isEnabled() const { return m_isEnabled; }
    /// While false nothing fires, and the registrations wait.
    void setEnabled(bool enabled);

    void menuDidBeginTracking() { setMenuOpen(true); }
    void menuDidEndTracking() { setMenuOpen(false); }

    /// A key event of one of the program's own windows; true where it was a shortcut.
    bool handleRawKeyEvent(KeyEventType type, const Shortcut& shortcut);

private:
    /// One registration. The id is never used again.
    struct HotKey {
        Shortcut shortcut;
        Action onKeyDown;
        Action onKeyUp;
        bool isRegistered = false;
    };

    [[nodiscard]] bool registerHotKey(quint32 id, HotKey& hotKey);
    void installEventHandler();
    void setMenuOpen(bool isOpen);
    void updateEventHandler();
    void registerAll();
    void unregisterAll();
    void handleHotKeyEvent(KeyEventType type, quint32 id);

    HotKeyRegistrar& m_registrar;
    const KeyboardLayout& m_layout;
    std::map<quint32, HotKey> m_hotKeys;
    quint32 m_lastId = 0;
    /// Made with the first registration.
    std::unique_ptr<LocalEventMonitor> m_monitor;
    bool m_isEnabled = true;
    bool m_isMenuOpen = false;
};

} // namespace dropshade
