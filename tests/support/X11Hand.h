// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QGuiApplication>
#include <QPoint>
#include <QWindow>

#include <X11/keysym.h>
#include <xcb/xcb_keysyms.h>
#include <xcb/xtest.h>

#include <algorithm>
#include <cstdlib>

namespace dropshade {

/// The mouse and the keyboard of the X server that the test runs on, by its XTEST extension.
class X11Hand {
public:
    X11Hand() : m_connection(xcb_connect(nullptr, nullptr)) {}
    ~X11Hand() {
        // An answer proves that the server has seen all that was sent; it may drop the rest of a
        // connection that is closed.
        std::free(
            xcb_get_input_focus_reply(m_connection, xcb_get_input_focus(m_connection), nullptr));
        xcb_disconnect(m_connection);
    }
    X11Hand(const X11Hand&) = delete;
    X11Hand& operator=(const X11Hand&) = delete;

    /// False under a platform of Qt without a server, where there is nothing to test.
    static bool isThere() { return QGuiApplication::platformName() == QLatin1String("xcb"); }

    void moveTo(const QPoint& position) {
        const xcb_screen_t* screen = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data;
        xcb_warp_pointer(m_connection, XCB_NONE, screen->root, 0, 0, 0, 0,
                         static_cast<std::int16_t>(position.x()),
                         static_cast<std::int16_t>(position.y()));
        xcb_flush(m_connection);
    }

    /// Whether a click would go to a window of this program, wherever another has embedded it.
    [[nodiscard]] bool isOverThisProgram() {
        const xcb_window_t window = windowUnderPointer();
        const QWindowList own = QGuiApplication::allWindows();
        return std::any_of(own.begin(), own.end(), [window](const QWindow* one) {
            return one->handle() && one->winId() == window;
        });
    }

    void click(std::uint8_t button) {
        send(XCB_BUTTON_PRESS, button);
        send(XCB_BUTTON_RELEASE, button);
    }

    void escape() {
        press(keyOf(XK_Escape));
        release(keyOf(XK_Escape));
    }

    /// The key that makes the symbol, by the server's number.
    [[nodiscard]] std::uint8_t keyOf(xcb_keysym_t symbol) {
        xcb_key_symbols_t* symbols = xcb_key_symbols_alloc(m_connection);
        xcb_keycode_t* codes = xcb_key_symbols_get_keycode(symbols, symbol);
        const std::uint8_t key = codes[0];
        std::free(codes);
        xcb_key_symbols_free(symbols);
        return key;
    }

    void press(std::uint8_t key) { send(XCB_KEY_PRESS, key); }
    void release(std::uint8_t key) { send(XCB_KEY_RELEASE, key); }

    /// Another program's connection to the same server.
    xcb_connection_t* connection() { return m_connection; }

private:
    xcb_window_t windowUnderPointer() {
        xcb_window_t deepest = XCB_NONE;
        xcb_window_t next = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data->root;
        while (next != XCB_NONE) {
            deepest = next;
            xcb_query_pointer_reply_t* reply = xcb_query_pointer_reply(
                m_connection, xcb_query_pointer(m_connection, deepest), nullptr);
            next = reply ? reply->child : XCB_NONE;
            std::free(reply);
        }
        return deepest;
    }

    void send(std::uint8_t type, std::uint8_t detail) {
        xcb_test_fake_input(m_connection, type, detail, XCB_CURRENT_TIME, XCB_NONE, 0, 0, 0);
        xcb_flush(m_connection);
    }

    xcb_connection_t* m_connection;
};

} // namespace dropshade
