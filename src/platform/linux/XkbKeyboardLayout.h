// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/KeyboardLayout.h"
#include "platform/linux/XcbConnection.h"

#include <QByteArray>
#include <QElapsedTimer>

#include <xkbcommon/xkbcommon.h>

namespace dropshade {

/// The keyboard's layout by xkbcommon: on an X server that of the server, under Wayland the first
/// one of the compositor's, which tells the one in use to the window that has the keyboard alone;
/// elsewhere the system's default. Opened and read at the first question for a character.
class XkbKeyboardLayout : public KeyboardLayout {
public:
    XkbKeyboardLayout();
    ~XkbKeyboardLayout() override;

    [[nodiscard]] QString character(quint32 keyCode) const override;
    [[nodiscard]] std::optional<quint32> keyCode(quint32 nativeScanCode) const override;

private:
    struct Free {
        void operator()(xkb_context* context) const { xkb_context_unref(context); }
        void operator()(xkb_keymap* keymap) const { xkb_keymap_unref(keymap); }
    };

    void openServer() const;
    void refreshKeymap() const;
    void readServer() const;
    void readCompositor() const;
    [[nodiscard]] bool didServerChange() const;
    [[nodiscard]] xkb_layout_index_t currentLayout() const;

    // Read at need, and read anew where the user has changed the keyboard: a cache, which is no
    // part of what the object is.
    mutable bool m_isOpened = false;
    mutable std::unique_ptr<XcbConnection> m_server;
    mutable std::unique_ptr<xkb_context, Free> m_context;
    mutable std::unique_ptr<xkb_keymap, Free> m_keymap;
    mutable QByteArray m_compositorsKeymap;
    mutable QElapsedTimer m_sinceAsked;
};

} // namespace dropshade
