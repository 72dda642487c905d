// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/linux/XkbKeyboardLayout.h"

#include "platform/linux/VirtualKeyCodes.h"
#include "platform/linux/WaylandKeymap.h"
#include "platform/linux/XcbXkb.h"

#include <QGuiApplication>

#include <algorithm>
#include <array>
#include <bitset>
#include <chrono>
#include <utility>

#include <xkbcommon/xkbcommon-x11.h>

namespace dropshade {

namespace {

constexpr int letterCount = 26;
/// For how long the compositor's answer is taken to hold.
constexpr std::chrono::milliseconds freshness{1000};

/// Dead keys type nothing by themselves; these are the accents engraved on them.
constexpr std::array<std::pair<xkb_keysym_t, char32_t>, 13> deadKeys{{
    {XKB_KEY_dead_grave, U'`'},
    {XKB_KEY_dead_acute, U'\u00B4'},
    {XKB_KEY_dead_circumflex, U'^'},
    {XKB_KEY_dead_tilde, U'~'},
    {XKB_KEY_dead_macron, U'\u00AF'},
    {XKB_KEY_dead_breve, U'\u02D8'},
    {XKB_KEY_dead_abovedot, U'\u02D9'},
    {XKB_KEY_dead_diaeresis, U'\u00A8'},
    {XKB_KEY_dead_abovering, U'\u02DA'},
    {XKB_KEY_dead_doubleacute, U'\u02DD'},
    {XKB_KEY_dead_caron, U'\u02C7'},
    {XKB_KEY_dead_cedilla, U'\u00B8'},
    {XKB_KEY_dead_ogonek, U'\u02DB'},
}};

/// 0 where the key makes no character.
char32_t characterOf(xkb_keymap* keymap, xkb_keycode_t key, xkb_layout_index_t layout) {
    const xkb_keysym_t* keysyms = nullptr;
    if (xkb_keymap_key_get_syms_by_level(keymap, key, layout, 0, &keysyms) != 1)
        return 0;
    const auto* dead = std::find_if(deadKeys.begin(), deadKeys.end(),
                                    [keysyms](const auto& row) { return row.first == keysyms[0]; });
    if (dead != deadKeys.end())
        return dead->second;
    const char32_t character = xkb_keysym_to_utf32(keysyms[0]);
    return QChar::isPrint(character) ? character : 0;
}

bool hasLatinLetters(xkb_keymap* keymap, xkb_layout_index_t layout) {
    std::bitset<letterCount> letters;
    for (xkb_keycode_t key = xkb_keymap_min_keycode(keymap); key <= xkb_keymap_max_keycode(keymap);
         ++key) {
        const char32_t character = characterOf(keymap, key, layout);
        if (character >= U'a' && character <= U'z')
            letters.set(character - U'a');
    }
    return letters.all();
}

xkb_layout_index_t latinLayout(xkb_keymap* keymap, xkb_layout_index_t current) {
    if (hasLatinLetters(keymap, current))
        return current;
    for (xkb_layout_index_t layout = 0; layout < xkb_keymap_num_layouts(keymap); ++layout) {
        if (hasLatinLetters(keymap, layout))
            return layout;
    }
    return current;
}

} // namespace

XkbKeyboardLayout::XkbKeyboardLayout() = default;

XkbKeyboardLayout::~XkbKeyboardLayout() = default;

QString XkbKeyboardLayout::character(quint32 keyCode) const {
    const auto code = linuxKeyCode(keyCode);
    refreshKeymap();
    if (!code || !m_keymap)
        return {};
    const char32_t character = characterOf(m_keymap.get(), *code + xkbKeyCodeOffset,
                                           latinLayout(m_keymap.get(), currentLayout()));
    return character == 0 ? QString() : QString::fromUcs4(&character, 1).toLower();
}

std::optional<quint32> XkbKeyboardLayout::keyCode(quint32 nativeScanCode) const {
    return nativeScanCode < xkbKeyCodeOffset ? std::nullopt
                                             : virtualKeyCode(nativeScanCode - xkbKeyCodeOffset);
}

void XkbKeyboardLayout::openServer() const {
    m_isOpened = true;
    m_context.reset(xkb_context_new(XKB_CONTEXT_NO_FLAGS));
    m_server = guiConnection() ? XcbConnection::open() : nullptr;
    if (!m_server)
        return;
    xcb_connection_t* connection = m_server->get();
    const bool hasXkb = xkb_x11_setup_xkb_extension(
        connection, XKB_X11_MIN_MAJOR_XKB_VERSION, XKB_X11_MIN_MINOR_XKB_VERSION,
        XKB_X11_SETUP_XKB_EXTENSION_NO_FLAGS, nullptr, nullptr, nullptr, nullptr);
    if (!hasXkb) {
        m_server.reset();
        return;
    }
    constexpr std::uint16_t changes =
        XCB_XKB_EVENT_TYPE_NEW_KEYBOARD_NOTIFY | XCB_XKB_EVENT_TYPE_MAP_NOTIFY;
    constexpr std::uint16_t anyPart = 0xFF;
    xcb_xkb_select_events(connection, XCB_XKB_ID_USE_CORE_KBD, changes, 0, changes, anyPart,
                          anyPart, nullptr);
    xcb_flush(connection);
}

bool XkbKeyboardLayout::didServerChange() const {
    bool didChange = false;
    while (XcbReply<xcb_generic_event_t>(xcb_poll_for_event(m_server->get())))
        didChange = true;
    return didChange;
}

void XkbKeyboardLayout::refreshKeymap() const {
    if (!m_isOpened)
        openServer();
    if (m_server)
        readServer();
    else
        readCompositor();
}

void XkbKeyboardLayout::readServer() const {
    if (m_keymap && !didServerChange())
        return;
    const int device = xkb_x11_get_core_keyboard_device_id(m_server->get());
    m_keymap.reset(xkb_x11_keymap_new_from_device(m_context.get(), m_server->get(), device,
                                                  XKB_KEYMAP_COMPILE_NO_FLAGS));
}

void XkbKeyboardLayout::readCompositor() const {
    // A menu asks for several characters at once.
    if (m_keymap && !m_sinceAsked.hasExpired(freshness.count()))
        return;
    m_sinceAsked.start();
    const bool isWayland = QGuiApplication::platformName().startsWith(QStringLiteral("wayland"));
    const QByteArray text = isWayland ? waylandKeymap() : QByteArray();
    if (m_keymap && text == m_compositorsKeymap)
        return;
    m_compositorsKeymap = text;
    m_keymap.reset(
        text.isEmpty()
            ? xkb_keymap_new_from_names(m_context.get(), nullptr, XKB_KEYMAP_COMPILE_NO_FLAGS)
            : xkb_keymap_new_from_string(m_context.get(), text.constData(),
                                         XKB_KEYMAP_FORMAT_TEXT_V1, XKB_KEYMAP_COMPILE_NO_FLAGS));
}

xkb_layout_index_t XkbKeyboardLayout::currentLayout() const {
    if (!m_server)
        return 0;
    const XcbReply<xcb_xkb_get_state_reply_t> state(xcb_xkb_get_state_reply(
        m_server->get(), xcb_xkb_get_state(m_server->get(), XCB_XKB_ID_USE_CORE_KBD), nullptr));
    return state ? state->group : 0;
}

} // namespace dropshade
