// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/HotKeyRegistrar.h"
#include "platform/linux/X11ModifierMasks.h"
#include "platform/linux/XcbConnection.h"

#include <QSocketNotifier>

#include <map>
#include <optional>

namespace dropshade {

/// Hot keys as passive grabs of the X server, on a connection of its own that opens with the first:
/// there a held key can be had without its repetitions, which Qt wants to see on its own.
class X11HotKeyRegistrar : public HotKeyRegistrar {
    Q_OBJECT

public:
    X11HotKeyRegistrar();
    ~X11HotKeyRegistrar() override;

    [[nodiscard]] Status registerHotKey(quint32 id, quint32 keyCode, quint32 modifiers) override;
    void unregisterHotKey(quint32 id) override;

private:
    struct HotKey {
        xcb_keycode_t key = 0;
        quint32 modifiers = 0;
        /// The state that is grabbed; nothing while it can't be had.
        std::optional<std::uint16_t> grabbedState;
    };

    bool openConnection();
    void askForQuietRepeats();
    [[nodiscard]] Status grab(HotKey& hotKey);
    void ungrab(HotKey& hotKey);
    void regrabIfModifiersMoved();
    /// After any talk with the server: what came in meanwhile makes the socket no more readable.
    void readEventsSoon();
    void readEvents();
    void handlePress(const xcb_key_press_event_t& event);
    void handleRelease(const xcb_key_release_event_t& event);

    std::unique_ptr<XcbConnection> m_connection;
    std::unique_ptr<QSocketNotifier> m_notifier;
    X11ModifierMasks m_masks;
    std::map<quint32, HotKey> m_hotKeys;
    /// What was reported as pressed, by key.
    std::map<xcb_keycode_t, quint32> m_down;
    std::uint8_t m_firstXkbEvent = 0;
};

} // namespace dropshade
