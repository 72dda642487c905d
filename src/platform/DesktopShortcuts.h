// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QKeySequence>
#include <QList>
#include <QObject>
#include <QString>

namespace dropshade {

/// Keys for actions of the program on a desktop that keeps the keyboard to itself. The program asks
/// for them once; which they are is between the desktop and its user, who may give none, and change
/// them at any time.
class DesktopShortcuts : public QObject {
    Q_OBJECT

public:
    /// An action that a key is wanted for.
    struct Wish {
        QString id;
        /// What the action does, in the user's language, for the desktop to show.
        QString description;
        /// A proposal, which the desktop need not follow; may be empty.
        QKeySequence preferredKey;
    };

    enum class State {
        Unavailable, ///< The desktop has no such keys, or has not said yet that it has.
        Unbound,     ///< Nobody has asked for keys, or the user said no.
        Asking,      ///< The desktop has the question; its user may think about it.
        Bound        ///< The keys that there are work.
    };

    [[nodiscard]] virtual State state() const = 0;

    /// Asks for keys for these actions, and for no others any more. Also where the state is
    /// `Unavailable`, for the answer tells. While it is `Asking`, nothing.
    virtual void bind(const QList<Wish>& wishes) = 0;

    /// How the desktop writes the action's key; empty where it has none.
    [[nodiscard]] virtual QString trigger(const QString& id) const = 0;

    /// Whether the desktop lets itself be asked to show where the user changes the keys.
    [[nodiscard]] virtual bool canConfigure() const = 0;
    virtual void configure() = 0;

Q_SIGNALS:
    /// The state, a trigger, or `canConfigure`.
    void didChange();
    /// The user does not want the keys that `bind` asked for.
    void refused();
    /// Once when the action's key goes down, however long it is held.
    void pressed(const QString& id);
    /// Once after each `pressed`, unless the keys are lost meanwhile.
    void released(const QString& id);
};

} // namespace dropshade
