// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "color/SRGBColor.h"
#include "platform/linux/X11PixelFormat.h"
#include "platform/linux/XcbConnection.h"

#include <QImage>
#include <QRegion>

#include <memory>

namespace dropshade {

/// A picture of all screens, taken once, that lies over them until it is destroyed. It is kept by
/// the X server, so that taking and showing it moves no pixels between processes. Whatever is drawn
/// on it leaves the picture itself untouched, and reads go to the picture: it never reads back what
/// was drawn. All coordinates are the X server's pixels.
class X11FrozenScreen {
public:
    /// Takes the picture; nothing when the screen's pixels cannot be read.
    [[nodiscard]] static std::unique_ptr<X11FrozenScreen> take(const XcbConnection& connection);
    ~X11FrozenScreen();
    X11FrozenScreen(const X11FrozenScreen&) = delete;
    X11FrozenScreen& operator=(const X11FrozenScreen&) = delete;

    QRect bounds() const { return m_bounds; }

    void show();
    void hide();

    /// The pixel at `position`, which must be inside the bounds; nothing when the server is gone.
    [[nodiscard]] std::optional<SRGBColor> colorAt(const QPoint& position) const;

    /// The picture's pixels in `area` as ARGB32; those outside of the bounds are transparent.
    [[nodiscard]] QImage pixels(const QRect& area) const;

    /// Lays an opaque `image` over the picture with its top left at `position`, and takes away what
    /// the last call drew.
    void draw(const QPoint& position, const QImage& image);

private:
    X11FrozenScreen(const XcbConnection& connection, const X11PixelFormat& format);
    void copyRoot();
    void createWindow();
    void put(const QRect& area, const QImage& image);
    [[nodiscard]] XcbReply<xcb_get_image_reply_t> read(const QRect& area) const;

    const XcbConnection& m_connection;
    X11PixelFormat m_format;
    QRect m_bounds;
    xcb_pixmap_t m_picture = 0;
    xcb_window_t m_window = 0;
    xcb_gcontext_t m_context = 0;
    QRect m_drawn;
};

} // namespace dropshade
