// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/linux/X11HotKeyRegistrar.h"

#include "platform/linux/VirtualKeyCodes.h"
#include "platform/linux/XcbXkb.h"

#include <algorithm>
#include <limits>
#include <vector>

namespace dropshade {

namespace {

constexpr int eventTypeMask = 0x7F;

/// What of a key event's state tells combinations apart; the bits above are buttons and layouts.
constexpr std::uint16_t modifierBits = 0xFF;

std::optional<xcb_keycode_t> serverKey(quint32 virtualKeyCode) {
    const auto code = linuxKeyCode(virtualKeyCode);
    if (!code || *code + xkbKeyCodeOffset > std::numeric_limits<xcb_keycode_t>::max())
        return std::nullopt;
    return static_cast<xcb_keycode_t>(*code + xkbKeyCodeOffset);
}

} // namespace

X11HotKeyRegistrar::X11HotKeyRegistrar() = default;

X11HotKeyRegistrar::~X11HotKeyRegistrar() = default;

HotKeyRegistrar::Status X11HotKeyRegistrar::registerHotKey(quint32 id, quint32 keyCode,
                                                           quint32 modifiers) {
    const auto key = serverKey(keyCode);
    if (!key || !openConnection())
        return Status::Unavailable;
    // The server gives one program the same combination as often as it asks.
    const bool isOurs = std::any_of(m_hotKeys.begin(), m_hotKeys.end(), [&](const auto& entry) {
        return entry.second.key == *key && entry.second.modifiers == modifiers;
    });
    if (isOurs)
        return Status::Taken;
    HotKey hotKey{*key, modifiers, std::nullopt};
    const Status status = grab(hotKey);
    if (status == Status::Registered)
        m_hotKeys.insert_or_assign(id, hotKey);
    return status;
}

void X11HotKeyRegistrar::unregisterHotKey(quint32 id) {
    const auto found = m_hotKeys.find(id);
    if (found == m_hotKeys.end())
        return;
    ungrab(found->second);
    m_hotKeys.erase(found);
    // A key that is down still holds the whole keyboard, which a menu may be about to want.
    const auto released =
        std::erase_if(m_down, [id](const auto& down) { return down.second == id; });
    if (released > 0)
        xcb_ungrab_keyboard(m_connection->get(), XCB_CURRENT_TIME);
    xcb_flush(m_connection->get());
    readEventsSoon();
}

bool X11HotKeyRegistrar::openConnection() {
    if (m_connection)
        return true;
    m_connection = XcbConnection::open();
    if (!m_connection)
        return false;
    askForQuietRepeats();
    m_masks = X11ModifierMasks::read(m_connection->get());
    m_notifier = std::make_unique<QSocketNotifier>(xcb_get_file_descriptor(m_connection->get()),
                                                   QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, &X11HotKeyRegistrar::readEvents);
    return true;
}

void X11HotKeyRegistrar::askForQuietRepeats() {
    xcb_connection_t* connection = m_connection->get();
    const XcbReply<xcb_xkb_use_extension_reply_t> extension(xcb_xkb_use_extension_reply(
        connection, xcb_xkb_use_extension(connection, XCB_XKB_MAJOR_VERSION, XCB_XKB_MINOR_VERSION),
        nullptr));
    if (!extension || !extension->supported)
        return;
    // A held key then comes as presses without releases between them.
    const XcbReply<xcb_xkb_per_client_flags_reply_t> flags(xcb_xkb_per_client_flags_reply(
        connection,
        xcb_xkb_per_client_flags(connection, XCB_XKB_ID_USE_CORE_KBD,
                                 XCB_XKB_PER_CLIENT_FLAG_DETECTABLE_AUTO_REPEAT,
                                 XCB_XKB_PER_CLIENT_FLAG_DETECTABLE_AUTO_REPEAT, 0, 0, 0),
        nullptr));
    m_firstXkbEvent = xcb_get_extension_data(connection, &xcb_xkb_id)->first_event;
    constexpr std::uint16_t keyboardChanges =
        XCB_XKB_EVENT_TYPE_NEW_KEYBOARD_NOTIFY | XCB_XKB_EVENT_TYPE_MAP_NOTIFY;
    constexpr std::uint16_t anyPart = 0xFF;
    xcb_xkb_select_events(connection, XCB_XKB_ID_USE_CORE_KBD, keyboardChanges, 0, keyboardChanges,
                          anyPart, anyPart, nullptr);
    xcb_flush(connection);
}

HotKeyRegistrar::Status X11HotKeyRegistrar::grab(HotKey& hotKey) {
    const auto state = m_masks.state(hotKey.modifiers);
    if (!state)
        return Status::Unavailable;
    xcb_connection_t* connection = m_connection->get();
    std::vector<xcb_void_cookie_t> cookies;
    for (const std::uint16_t locks : m_masks.lockStates())
        cookies.push_back(xcb_grab_key_checked(connection, 0, m_connection->screen().root,
                                               std::uint16_t(*state | locks), hotKey.key,
                                               XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC));
    Status status = Status::Registered;
    for (const xcb_void_cookie_t cookie : cookies) {
        const XcbReply<xcb_generic_error_t> error(xcb_request_check(connection, cookie));
        if (error)
            status = error->error_code == XCB_ACCESS ? Status::Taken : Status::Unavailable;
    }
    hotKey.grabbedState = state;
    if (status != Status::Registered)
        ungrab(hotKey);
    readEventsSoon();
    return status;
}

void X11HotKeyRegistrar::ungrab(HotKey& hotKey) {
    if (!hotKey.grabbedState)
        return;
    for (const std::uint16_t locks : m_masks.lockStates())
        xcb_ungrab_key(m_connection->get(), hotKey.key, m_connection->screen().root,
                       std::uint16_t(*hotKey.grabbedState | locks));
    hotKey.grabbedState.reset();
    xcb_flush(m_connection->get());
}

void X11HotKeyRegistrar::regrabIfModifiersMoved() {
    const X11ModifierMasks masks = X11ModifierMasks::read(m_connection->get());
    if (masks == m_masks)
        return;
    for (auto& [id, hotKey] : m_hotKeys)
        ungrab(hotKey);
    m_masks = masks;
    for (auto& [id, hotKey] : m_hotKeys)
        static_cast<void>(grab(hotKey));
}

void X11HotKeyRegistrar::readEventsSoon() {
    QMetaObject::invokeMethod(this, &X11HotKeyRegistrar::readEvents, Qt::QueuedConnection);
}

void X11HotKeyRegistrar::readEvents() {
    bool didKeyboardChange = false;
    while (const XcbReply<xcb_generic_event_t> event{xcb_poll_for_event(m_connection->get())}) {
        const int type = event->response_type & eventTypeMask;
        if (type == XCB_KEY_PRESS)
            handlePress(*reinterpret_cast<const xcb_key_press_event_t*>(event.get()));
        else if (type == XCB_KEY_RELEASE)
            handleRelease(*reinterpret_cast<const xcb_key_release_event_t*>(event.get()));
        else if (type == XCB_MAPPING_NOTIFY || (m_firstXkbEvent != 0 && type == m_firstXkbEvent))
            didKeyboardChange = true;
    }
    if (xcb_connection_has_error(m_connection->get())) {
        m_notifier->setEnabled(false);
    } else if (didKeyboardChange) {
        regrabIfModifiersMoved();
        readEventsSoon();
    }
}

void X11HotKeyRegistrar::handlePress(const xcb_key_press_event_t& event) {
    if (m_down.contains(event.detail))
        return;
    const auto state = std::uint16_t(event.state & modifierBits & ~m_masks.locks);
    for (const auto& [id, hotKey] : m_hotKeys) {
        if (hotKey.key != event.detail || hotKey.grabbedState != state)
            continue;
        // Copied, for what is told may take the hot key away.
        const quint32 pressedId = id;
        m_down.emplace(event.detail, pressedId);
        Q_EMIT pressed(pressedId);
        return;
    }
}

void X11HotKeyRegistrar::handleRelease(const xcb_key_release_event_t& event) {
    if (const auto down = m_down.extract(event.detail))
        Q_EMIT released(down.mapped());
}

} // namespace dropshade
