// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/linux/X11FrozenScreen.h"

#include <algorithm>
#include <array>
#include <vector>

namespace dropshade {

namespace {

std::int16_t coordinate(int value) {
    return static_cast<std::int16_t>(value);
}
std::uint16_t extent(int value) {
    return static_cast<std::uint16_t>(value);
}

} // namespace

std::unique_ptr<X11FrozenScreen> X11FrozenScreen::take(const XcbConnection& connection) {
    const xcb_visualtype_t* visual = connection.rootVisual();
    if (!visual)
        return nullptr;
    const auto format =
        X11PixelFormat::of(*xcb_get_setup(connection.get()), connection.screen(), *visual);
    if (!format)
        return nullptr;
    return std::unique_ptr<X11FrozenScreen>(new X11FrozenScreen(connection, *format));
}

X11FrozenScreen::X11FrozenScreen(const XcbConnection& connection, const X11PixelFormat& format)
    : m_connection(connection), m_format(format) {
    // The screen's size in the connection's set-up is that of the moment of connecting.
    m_bounds =
        QRect(0, 0, connection.screen().width_in_pixels, connection.screen().height_in_pixels);
    copyRoot();
    createWindow();
}

X11FrozenScreen::~X11FrozenScreen() {
    xcb_destroy_window(m_connection.get(), m_window);
    xcb_free_pixmap(m_connection.get(), m_picture);
    xcb_free_gc(m_connection.get(), m_context);
    xcb_flush(m_connection.get());
}

void X11FrozenScreen::copyRoot() {
    xcb_connection_t* connection = m_connection.get();
    const xcb_window_t root = m_connection.screen().root;
    m_picture = xcb_generate_id(connection);
    xcb_create_pixmap(connection, m_connection.screen().root_depth, m_picture, root,
                      extent(m_bounds.width()), extent(m_bounds.height()));
    m_context = xcb_generate_id(connection);
    const std::array<std::uint32_t, 2> values{XCB_SUBWINDOW_MODE_INCLUDE_INFERIORS, 0};
    xcb_create_gc(connection, m_context, root, XCB_GC_SUBWINDOW_MODE | XCB_GC_GRAPHICS_EXPOSURES,
                  values.data());
    xcb_copy_area(connection, root, m_picture, m_context, 0, 0, 0, 0, extent(m_bounds.width()),
                  extent(m_bounds.height()));
}

void X11FrozenScreen::createWindow() {
    m_window = xcb_generate_id(m_connection.get());
    const std::array<std::uint32_t, 2> values{m_picture, 1};
    xcb_create_window(
        m_connection.get(), XCB_COPY_FROM_PARENT, m_window, m_connection.screen().root, 0, 0,
        extent(m_bounds.width()), extent(m_bounds.height()), 0, XCB_WINDOW_CLASS_INPUT_OUTPUT,
        XCB_COPY_FROM_PARENT, XCB_CW_BACK_PIXMAP | XCB_CW_OVERRIDE_REDIRECT, values.data());
}

void X11FrozenScreen::show() {
    xcb_map_window(m_connection.get(), m_window);
    xcb_flush(m_connection.get());
}

void X11FrozenScreen::hide() {
    xcb_unmap_window(m_connection.get(), m_window);
    xcb_flush(m_connection.get());
}

XcbReply<xcb_get_image_reply_t> X11FrozenScreen::read(const QRect& area) const {
    const auto cookie = xcb_get_image(m_connection.get(), XCB_IMAGE_FORMAT_Z_PIXMAP, m_picture,
                                      coordinate(area.x()), coordinate(area.y()),
                                      extent(area.width()), extent(area.height()), ~0U);
    XcbReply<xcb_get_image_reply_t> reply(xcb_get_image_reply(m_connection.get(), cookie, nullptr));
    const std::size_t needed =
        m_format.stride(area.width()) * static_cast<std::size_t>(area.height());
    if (reply && static_cast<std::size_t>(xcb_get_image_data_length(reply.get())) < needed)
        reply.reset();
    return reply;
}

std::optional<SRGBColor> X11FrozenScreen::colorAt(const QPoint& position) const {
    const auto reply = read(QRect(position, QSize(1, 1)));
    if (!reply)
        return std::nullopt;
    return m_format.color(m_format.pixel(xcb_get_image_data(reply.get()), 0));
}

QImage X11FrozenScreen::pixels(const QRect& area) const {
    QImage image(area.size(), QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    const QRect inside = area & m_bounds;
    const auto reply = inside.isEmpty() ? nullptr : read(inside);
    if (!reply)
        return image;
    const std::size_t stride = m_format.stride(inside.width());
    for (int y = 0; y < inside.height(); ++y) {
        const std::uint8_t* row =
            xcb_get_image_data(reply.get()) + stride * static_cast<std::size_t>(y);
        auto* target = reinterpret_cast<QRgb*>(image.scanLine(y + inside.y() - area.y())) +
                       (inside.x() - area.x());
        if (m_format.isNativeRGB32()) {
            std::transform(reinterpret_cast<const QRgb*>(row),
                           reinterpret_cast<const QRgb*>(row) + inside.width(), target,
                           [](QRgb pixel) { return pixel | 0xFF000000; });
            continue;
        }
        for (int x = 0; x < inside.width(); ++x)
            target[x] = m_format.rgb(m_format.pixel(row, x));
    }
    return image;
}

void X11FrozenScreen::draw(const QPoint& position, const QImage& image) {
    const QRect area = QRect(position, image.size()) & m_bounds;
    if (!area.isEmpty())
        put(area, image.copy(area.translated(-position)));
    // Only what the new image leaves bare is cleared, so that nothing flickers.
    for (const QRect& bare : QRegion(m_drawn) - QRegion(area)) {
        xcb_clear_area(m_connection.get(), 0, m_window, coordinate(bare.x()), coordinate(bare.y()),
                       extent(bare.width()), extent(bare.height()));
    }
    m_drawn = area;
    xcb_flush(m_connection.get());
}

void X11FrozenScreen::put(const QRect& area, const QImage& image) {
    const std::size_t stride = m_format.stride(area.width());
    std::vector<std::uint8_t> bytes(stride * static_cast<std::size_t>(area.height()));
    for (int y = 0; y < area.height(); ++y) {
        std::uint8_t* row = bytes.data() + stride * static_cast<std::size_t>(y);
        const auto* source = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        if (m_format.isNativeRGB32()) {
            std::copy_n(reinterpret_cast<const std::uint8_t*>(source), stride, row);
            continue;
        }
        for (int x = 0; x < area.width(); ++x)
            m_format.setPixel(row, x, source[x]);
    }
    // A request has a largest size, 256 KiB on the plainest servers.
    constexpr std::size_t requestHeader = 64;
    const std::size_t most =
        std::size_t{xcb_get_maximum_request_length(m_connection.get())} * 4 - requestHeader;
    const int rows = static_cast<int>(std::max<std::size_t>(1, most / stride));
    for (int y = 0; y < area.height(); y += rows) {
        const int count = std::min(rows, area.height() - y);
        xcb_put_image(m_connection.get(), XCB_IMAGE_FORMAT_Z_PIXMAP, m_window, m_context,
                      extent(area.width()), extent(count), coordinate(area.x()),
                      coordinate(area.y() + y), 0, m_connection.screen().root_depth,
                      static_cast<std::uint32_t>(stride * static_cast<std::size_t>(count)),
                      bytes.data() + stride * static_cast<std::size_t>(y));
    }
}

} // namespace dropshade
