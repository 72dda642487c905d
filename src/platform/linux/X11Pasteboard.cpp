// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/linux/X11Pasteboard.h"

#include "platform/linux/XcbConnection.h"

#include <QGuiApplication>

#include <chrono>

namespace dropshade {

namespace {

/// The event that tells Qt of the other program's copy, and so of the newer time, is on its way.
constexpr std::chrono::milliseconds offerDelay{5};
constexpr int mostOffers = 100;

bool ownsClipboard() {
    xcb_connection_t* connection = guiConnection();
    if (!connection)
        return true;
    const xcb_setup_t* setup = xcb_get_setup(connection);
    const XcbReply<xcb_get_selection_owner_reply_t> reply(xcb_get_selection_owner_reply(
        connection, xcb_get_selection_owner(connection, internAtom(connection, "CLIPBOARD")),
        nullptr));
    return reply && (reply->owner & ~setup->resource_id_mask) == setup->resource_id_base;
}

} // namespace

X11Pasteboard::X11Pasteboard() {
    m_nextOffer.setSingleShot(true);
    m_nextOffer.setInterval(offerDelay);
    QObject::connect(&m_nextOffer, &QTimer::timeout, &m_nextOffer, [this] { offer(); });
}

void X11Pasteboard::setText(const QString& text) {
    m_text = text;
    m_offersLeft = mostOffers;
    offer();
}

void X11Pasteboard::offer() {
    QtPasteboard::setText(m_text);
    if (!ownsClipboard() && --m_offersLeft > 0)
        m_nextOffer.start();
}

} // namespace dropshade
