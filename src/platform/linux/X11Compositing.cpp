// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/linux/X11Compositing.h"

#include "platform/linux/XcbConnection.h"

namespace dropshade {

bool windowsAreBlended() {
    xcb_connection_t* connection = guiConnection();
    if (!connection)
        return true;
    const xcb_atom_t manager = internAtom(connection, "_NET_WM_CM_S0");
    const XcbReply<xcb_get_selection_owner_reply_t> reply(xcb_get_selection_owner_reply(
        connection, xcb_get_selection_owner(connection, manager), nullptr));
    return reply && reply->owner != XCB_WINDOW_NONE;
}

} // namespace dropshade
