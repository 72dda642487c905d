// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

namespace dropshade {

/// Key combinations that reach the program whichever window has the keyboard.
///
/// A key is a place on the keyboard, whatever is engraved on it, and numbered by the virtual key
/// codes that shortcuts are stored in; so are the bits of the modifiers (`ModifierKeys.h`). Lock
/// keys make no difference.
class HotKeyRegistrar : public QObject {
    Q_OBJECT

public:
    enum class Status {
        Registered,
        Taken,      ///< Another program has the combination.
        Unavailable ///< The desktop offers none, or has no such key or modifier.
    };

    /// False where the desktop gives no combination to programs and keeps the keyboard to itself.
    [[nodiscard]] virtual bool isAvailable() const { return true; }

    /// Begins to report the combination as `id`, which must not be registered. Anything but
    /// `Registered` leaves nothing behind.
    [[nodiscard]] virtual Status registerHotKey(quint32 id, quint32 keyCode, quint32 modifiers) = 0;

    /// Nothing is reported as `id` any more, not even the release of a key that is down.
    virtual void unregisterHotKey(quint32 id) = 0;

Q_SIGNALS:
    /// Once when the key goes down, however long it is held.
    void pressed(quint32 id);
    /// Once after each `pressed`, when the key itself goes up; the modifiers may go up before.
    void released(quint32 id);
};

} // namespace dropshade
