// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "KeyboardShortcuts/KeyboardShortcuts.h"
#include "KeyboardShortcuts/ShortcutActions.h"
#include "platform/DesktopShortcuts.h"

namespace dropshade {

/// The global shortcuts where the desktop has the keys. It is asked for them when the user wants
/// them, and from then on at each start, when it gives them back without a word; a user who never
/// wanted any is never asked. What was recorded elsewhere goes along as a proposal.
class DesktopBindings : public QObject {
    Q_OBJECT

public:
    /// All of it must outlive this object.
    struct Surroundings {
        DesktopShortcuts& desktop;
        KeyboardShortcuts& shortcuts;
        UserDefaults& defaults;
    };

    DesktopBindings(const Surroundings& surroundings, QList<ShortcutAction> actions);

    /// Has the keys of the last time again, if there were any.
    void start();

    [[nodiscard]] DesktopShortcuts::State state() const { return m_with.desktop.state(); }

    /// The name's key in the desktop's words; empty where it has none.
    [[nodiscard]] QString trigger(const ShortcutName& name) const;

    /// Whether `change` leads anywhere: keys that are bound may be changed in the desktop alone.
    [[nodiscard]] bool canChange() const;
    /// The user wants other keys, or for the first time any: the desktop asks for them.
    void change();

Q_SIGNALS:
    /// Anything of the above.
    void didChange();

private:
    void bind();
    void perform(KeyEventType type, const QString& id);

    Surroundings m_with;
    QList<ShortcutAction> m_actions;
};

} // namespace dropshade
