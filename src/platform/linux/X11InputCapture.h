// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/linux/XcbConnection.h"

#include <QPoint>
#include <QRect>

#include <xcb/xcb_keysyms.h>

namespace dropshade {

/// Takes the pointer and the keyboard for one connection, by an invisible window over all screens
/// and grabs, and lets go of them when it ends.
class X11InputCapture {
public:
    X11InputCapture(const XcbConnection& connection, const QRect& bounds);
    ~X11InputCapture();
    X11InputCapture(const X11InputCapture&) = delete;
    X11InputCapture& operator=(const X11InputCapture&) = delete;

    /// True once both are taken. Another program may hold either for a while, such as the panel
    /// whose icon is being pressed, or an open menu; then it is to be tried again.
    [[nodiscard]] bool grab();

    /// The pointer's pixel on the root window, by the server's own account.
    [[nodiscard]] QPoint pointerPosition() const;
    void warpPointer(const QPoint& position);

    /// What is engraved on the key, whatever modifiers are held.
    [[nodiscard]] xcb_keysym_t keysym(const xcb_key_press_event_t& event) const;

private:
    void createWindow(const QRect& bounds);
    void createInvisibleCursor();
    [[nodiscard]] bool grabPointer();
    [[nodiscard]] bool grabKeyboard();

    const XcbConnection& m_connection;
    xcb_window_t m_window = 0;
    xcb_cursor_t m_cursor = 0;
    xcb_key_symbols_t* m_symbols = nullptr;
    bool m_hasPointer = false;
    bool m_hasKeyboard = false;
};

} // namespace dropshade
