// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/linux/XcbConnection.h"

#include <QGuiApplication>

namespace dropshade {

namespace {

xcb_screen_t* screenNumbered(xcb_connection_t* connection, int number) {
    auto screens = xcb_setup_roots_iterator(xcb_get_setup(connection));
    for (; screens.rem > 0; xcb_screen_next(&screens), --number) {
        if (number == 0)
            return screens.data;
    }
    return nullptr;
}

} // namespace

xcb_connection_t* guiConnection() {
    const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return x11 ? x11->connection() : nullptr;
}

xcb_atom_t internAtom(xcb_connection_t* connection, std::string_view name) {
    const auto cookie =
        xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(name.size()), name.data());
    const XcbReply<xcb_intern_atom_reply_t> reply(
        xcb_intern_atom_reply(connection, cookie, nullptr));
    return reply ? reply->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
}

std::unique_ptr<XcbConnection> XcbConnection::open() {
    int number = 0;
    xcb_connection_t* connection = xcb_connect(nullptr, &number);
    xcb_screen_t* screen =
        xcb_connection_has_error(connection) ? nullptr : screenNumbered(connection, number);
    if (!screen) {
        xcb_disconnect(connection);
        return nullptr;
    }
    return std::unique_ptr<XcbConnection>(new XcbConnection(connection, screen));
}

XcbConnection::~XcbConnection() {
    xcb_disconnect(m_connection);
}

const xcb_visualtype_t* XcbConnection::rootVisual() const {
    for (auto depths = xcb_screen_allowed_depths_iterator(m_screen); depths.rem > 0;
         xcb_depth_next(&depths)) {
        auto visuals = xcb_depth_visuals_iterator(depths.data);
        for (; visuals.rem > 0; xcb_visualtype_next(&visuals)) {
            if (visuals.data->visual_id == m_screen->root_visual)
                return visuals.data;
        }
    }
    return nullptr;
}

} // namespace dropshade
