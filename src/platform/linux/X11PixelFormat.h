// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "color/SRGBColor.h"

#include <QImage>

#include <xcb/xcb.h>

#include <cstdint>
#include <optional>

namespace dropshade {

/// How the X server stores a pixel of the root window.
class X11PixelFormat {
public:
    /// Nothing for screens without direct colours (palettes of at most 256), which no desktop of
    /// today runs on.
    [[nodiscard]] static std::optional<X11PixelFormat>
    of(const xcb_setup_t& setup, const xcb_screen_t& screen, const xcb_visualtype_t& visual);

    /// Bytes from the start of one row to the start of the next.
    [[nodiscard]] std::size_t stride(int width) const;

    /// The pixel at `x` in a row as the server sent it.
    [[nodiscard]] std::uint32_t pixel(const std::uint8_t* row, int x) const;

    /// Writes a pixel into a row that goes to the server.
    void setPixel(std::uint8_t* row, int x, QRgb color) const;

    /// With the full precision of the screen, ten bits a channel where it has them.
    [[nodiscard]] SRGBColor color(std::uint32_t pixel) const;
    [[nodiscard]] QRgb rgb(std::uint32_t pixel) const;

    /// True when a row is, byte for byte, a row of a `QImage::Format_RGB32`.
    [[nodiscard]] bool isNativeRGB32() const;

private:
    X11PixelFormat() = default;

    std::uint32_t m_redMask = 0;
    std::uint32_t m_greenMask = 0;
    std::uint32_t m_blueMask = 0;
    std::size_t m_bytes = 4;
    std::size_t m_padBytes = 4;
    bool m_bigEndian = false;
};

} // namespace dropshade
