// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/linux/X11InputCapture.h"

#include <array>

namespace dropshade {

namespace {

constexpr std::uint32_t pointerEvents =
    XCB_EVENT_MASK_BUTTON_PRESS | XCB_EVENT_MASK_BUTTON_RELEASE | XCB_EVENT_MASK_POINTER_MOTION;

} // namespace

X11InputCapture::X11InputCapture(const XcbConnection& connection, const QRect& bounds)
    : m_connection(connection), m_symbols(xcb_key_symbols_alloc(connection.get())) {
    createInvisibleCursor();
    createWindow(bounds);
}

X11InputCapture::~X11InputCapture() {
    xcb_connection_t* connection = m_connection.get();
    xcb_ungrab_pointer(connection, XCB_CURRENT_TIME);
    xcb_ungrab_keyboard(connection, XCB_CURRENT_TIME);
    xcb_destroy_window(connection, m_window);
    xcb_free_cursor(connection, m_cursor);
    xcb_key_symbols_free(m_symbols);
    xcb_flush(connection);
}

void X11InputCapture::createInvisibleCursor() {
    xcb_connection_t* connection = m_connection.get();
    const xcb_window_t root = m_connection.screen().root;
    const xcb_pixmap_t blank = xcb_generate_id(connection);
    xcb_create_pixmap(connection, 1, blank, root, 1, 1);
    const xcb_gcontext_t context = xcb_generate_id(connection);
    const std::uint32_t foreground = 0;
    xcb_create_gc(connection, context, blank, XCB_GC_FOREGROUND, &foreground);
    const xcb_rectangle_t whole{0, 0, 1, 1};
    xcb_poly_fill_rectangle(connection, blank, context, 1, &whole);
    m_cursor = xcb_generate_id(connection);
    xcb_create_cursor(connection, m_cursor, blank, blank, 0, 0, 0, 0, 0, 0, 0, 0);
    xcb_free_gc(connection, context);
    xcb_free_pixmap(connection, blank);
}

void X11InputCapture::createWindow(const QRect& bounds) {
    m_window = xcb_generate_id(m_connection.get());
    const std::array<std::uint32_t, 3> values{
        1, pointerEvents | XCB_EVENT_MASK_KEY_PRESS | XCB_EVENT_MASK_KEY_RELEASE, m_cursor};
    xcb_create_window(m_connection.get(), 0, m_window, m_connection.screen().root, 0, 0,
                      static_cast<std::uint16_t>(bounds.width()),
                      static_cast<std::uint16_t>(bounds.height()), 0, XCB_WINDOW_CLASS_INPUT_ONLY,
                      XCB_COPY_FROM_PARENT,
                      XCB_CW_OVERRIDE_REDIRECT | XCB_CW_EVENT_MASK | XCB_CW_CURSOR, values.data());
    xcb_map_window(m_connection.get(), m_window);
    xcb_flush(m_connection.get());
}

bool X11InputCapture::grab() {
    m_hasPointer = m_hasPointer || grabPointer();
    m_hasKeyboard = m_hasKeyboard || grabKeyboard();
    return m_hasPointer && m_hasKeyboard;
}

bool X11InputCapture::grabPointer() {
    const auto cookie =
        xcb_grab_pointer(m_connection.get(), 0, m_window, pointerEvents, XCB_GRAB_MODE_ASYNC,
                         XCB_GRAB_MODE_ASYNC, XCB_NONE, m_cursor, XCB_CURRENT_TIME);
    const XcbReply<xcb_grab_pointer_reply_t> reply(
        xcb_grab_pointer_reply(m_connection.get(), cookie, nullptr));
    return reply && reply->status == XCB_GRAB_STATUS_SUCCESS;
}

bool X11InputCapture::grabKeyboard() {
    const auto cookie = xcb_grab_keyboard(m_connection.get(), 0, m_window, XCB_CURRENT_TIME,
                                          XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
    const XcbReply<xcb_grab_keyboard_reply_t> reply(
        xcb_grab_keyboard_reply(m_connection.get(), cookie, nullptr));
    return reply && reply->status == XCB_GRAB_STATUS_SUCCESS;
}

QPoint X11InputCapture::pointerPosition() const {
    const auto cookie = xcb_query_pointer(m_connection.get(), m_connection.screen().root);
    const XcbReply<xcb_query_pointer_reply_t> reply(
        xcb_query_pointer_reply(m_connection.get(), cookie, nullptr));
    return reply ? QPoint(reply->root_x, reply->root_y) : QPoint();
}

void X11InputCapture::warpPointer(const QPoint& position) {
    xcb_warp_pointer(m_connection.get(), XCB_NONE, m_connection.screen().root, 0, 0, 0, 0,
                     static_cast<std::int16_t>(position.x()),
                     static_cast<std::int16_t>(position.y()));
    xcb_flush(m_connection.get());
}

xcb_keysym_t X11InputCapture::keysym(const xcb_key_press_event_t& event) const {
    return xcb_key_symbols_get_keysym(m_symbols, event.detail, 0);
}

} // namespace dropshade
