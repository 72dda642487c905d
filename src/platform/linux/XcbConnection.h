// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <xcb/xcb.h>

#include <cstdlib>
#include <memory>
#include <string_view>

namespace dropshade {

struct XcbFree {
    void operator()(void* reply) const { std::free(reply); }
};

/// What libxcb hands out and expects to be freed.
template <typename T>
using XcbReply = std::unique_ptr<T, XcbFree>;

/// The connection that Qt runs on; nothing when that is not X11.
[[nodiscard]] xcb_connection_t* guiConnection();

/// `XCB_ATOM_NONE` when the server is gone.
[[nodiscard]] xcb_atom_t internAtom(xcb_connection_t* connection, std::string_view name);

/// A connection of its own to the X server that the program runs on.
class XcbConnection {
public:
    /// Nothing when there is no server, or when its default screen cannot be told.
    [[nodiscard]] static std::unique_ptr<XcbConnection> open();
    ~XcbConnection();
    XcbConnection(const XcbConnection&) = delete;
    XcbConnection& operator=(const XcbConnection&) = delete;

    xcb_connection_t* get() const { return m_connection; }
    const xcb_screen_t& screen() const { return *m_screen; }

    /// The visual of the root window, or nothing for one that libxcb does not list.
    [[nodiscard]] const xcb_visualtype_t* rootVisual() const;

private:
    XcbConnection(xcb_connection_t* connection, xcb_screen_t* screen)
        : m_connection(connection), m_screen(screen) {}

    xcb_connection_t* m_connection;
    xcb_screen_t* m_screen;
};

} // namespace dropshade
