// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "KeyboardShortcuts/CarbonKeyboardShortcuts.h"
#include "KeyboardShortcuts/ShortcutName.h"
#include "platform/UserDefaults.h"

#include <QHash>
#include <QList>
#include <QPointer>
#include <QQueue>

namespace dropshade {

class ShortcutEvents;

/// The user's global shortcuts: what is stored under each name, and what happens when it is
/// pressed. A shortcut is read from the defaults at each event, so that a name always fires for
/// what is stored under it now. Main thread only.
class KeyboardShortcuts : public QObject {
    Q_OBJECT

public:
    using Action = std::function<void()>;

    /// All three must outlive this object.
    KeyboardShortcuts(UserDefaults& defaults, HotKeyRegistrar& registrar,
                      const KeyboardLayout& layout);
    ~KeyboardShortcuts() override;

    /// Stores the name's default, if it has one and nothing is stored under the name.
    void declare(const ShortcutName& name);

    /// What is stored under the name; nothing also where that can't be read.
    [[nodiscard]] std::optional<Shortcut> getShortcut(const ShortcutName& name) const;

    /// Stores the shortcut under the name and registers it, or with none removes what is there.
    /// What the name had is given up even where another name has the same; that one is silent until
    /// its shortcut is registered again.
    void setShortcut(const std::optional<Shortcut>& shortcut, const ShortcutName& name);

    // Actions run in the order in which they were added, each time that the name's shortcut goes
    // down or up.

    void onKeyDown(const ShortcutName& name, Action action);
    void onKeyUp(const ShortcutName& name, Action action);
    /// Drops the name's actions.
    void removeHandler(const ShortcutName& name);

    /// The same as a queue of events, which ends when it is destroyed.
    [[nodiscard]] std::unique_ptr<ShortcutEvents> events(const ShortcutName& name);

    /// Runs the name's actions as if its shortcut had gone down or up: for keys that the desktop
    /// has bound to the name, whatever is stored under it.
    void perform(KeyEventType type, const ShortcutName& name);

    /// The master switch: while false, no combination is held.
    [[nodiscard]] bool isEnabled() const { return m_carbon.isEnabled(); }
    void setEnabled(bool enabled) { m_carbon.setEnabled(enabled); }

    /// While a recorder records, combinations are held and do nothing.
    [[nodiscard]] bool isPaused() const { return m_isPaused; }
    /// Also tells that a recorder began or ended to record.
    void setRecorderActive(bool isActive);

    /// False where the desktop has no shortcuts for programs, so that recording one is no use.
    [[nodiscard]] bool isAvailable() const { return m_carbon.isAvailable(); }

    /// What a registration of the shortcut would come to now.
    [[nodiscard]] HotKeyRegistrar::Status statusOf(const Shortcut& shortcut);

    [[nodiscard]] const KeyboardLayout& layout() const { return m_layout; }

Q_SIGNALS:
    /// After each change of a stored shortcut.
    void shortcutByNameDidChange(const dropshade::ShortcutName& name);
    void recorderActiveStatusDidChange(bool isActive);
    /// A combination that is held was pressed while a recorder records. The desktop delivers it
    /// here alone, not to the window.
    void pressedForRecorder(const dropshade::Shortcut& shortcut);

private:
    friend class ShortcutEvents;

    using Actions = QHash<ShortcutName, QList<Action>>;
    using Streams = QHash<ShortcutName, QList<QPointer<ShortcutEvents>>>;

    void registerShortcut(const Shortcut& shortcut);
    void registerStored(const ShortcutName& name);
    void unregisterUnneeded(const std::optional<Shortcut>& shortcut);
    /// The shortcuts of all names that somebody listens to.
    [[nodiscard]] QSet<Shortcut> neededShortcuts() const;
    void dispatch(KeyEventType type, const Shortcut& shortcut);
    /// Runs the actions and fills the queues of the names that are meant.
    void run(KeyEventType type, const std::function<bool(const ShortcutName&)>& isMeant);
    void endStream(const ShortcutName& name);
    void storeDidChange(const QString& key);

    UserDefaults& m_defaults;
    const KeyboardLayout& m_layout;
    CarbonKeyboardShortcuts m_carbon;
    Actions m_keyDownActions;
    Actions m_keyUpActions;
    Streams m_streams;
    QSet<Shortcut> m_pressedForRecorder;
    bool m_isPaused = false;
    bool m_isWriting = false;
};

/// What happens to a name's shortcut, in a queue without an end.
class ShortcutEvents : public QObject {
    Q_OBJECT

public:
    ~ShortcutEvents() override;

    /// The oldest event that was not taken yet.
    [[nodiscard]] std::optional<KeyEventType> take();

Q_SIGNALS:
    /// After each event.
    void available();

private:
    friend class KeyboardShortcuts;

    ShortcutEvents(KeyboardShortcuts& shortcuts, ShortcutName name);
    void yield(KeyEventType type);

    QPointer<KeyboardShortcuts> m_shortcuts;
    ShortcutName m_name;
    QQueue<KeyEventType> m_queue;
};

} // namespace dropshade
