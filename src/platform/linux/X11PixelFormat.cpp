// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/linux/X11PixelFormat.h"

#include <bit>
#include <cmath>

namespace dropshade {

namespace {

double fraction(std::uint32_t pixel, std::uint32_t mask) {
    return static_cast<double>((pixel & mask) >> std::countr_zero(mask)) /
           static_cast<double>(mask >> std::countr_zero(mask));
}

int byte(std::uint32_t pixel, std::uint32_t mask) {
    return static_cast<int>(std::lround(fraction(pixel, mask) * 255.0));
}

std::uint32_t channel(int value, std::uint32_t mask) {
    const auto most = static_cast<double>(mask >> std::countr_zero(mask));
    const auto scaled = static_cast<std::uint32_t>(std::lround(value * most / 255.0));
    return scaled << std::countr_zero(mask);
}

} // namespace

std::optional<X11PixelFormat> X11PixelFormat::of(const xcb_setup_t& setup,
                                                 const xcb_screen_t& screen,
                                                 const xcb_visualtype_t& visual) {
    const bool direct = visual._class == XCB_VISUAL_CLASS_TRUE_COLOR ||
                        visual._class == XCB_VISUAL_CLASS_DIRECT_COLOR;
    if (!direct || !visual.red_mask || !visual.green_mask || !visual.blue_mask)
        return std::nullopt;
    X11PixelFormat format;
    format.m_redMask = visual.red_mask;
    format.m_greenMask = visual.green_mask;
    format.m_blueMask = visual.blue_mask;
    format.m_bigEndian = setup.image_byte_order == XCB_IMAGE_ORDER_MSB_FIRST;
    for (auto formats = xcb_setup_pixmap_formats_iterator(&setup); formats.rem > 0;
         xcb_format_next(&formats)) {
        if (formats.data->depth != screen.root_depth)
            continue;
        format.m_bytes = formats.data->bits_per_pixel / 8;
        format.m_padBytes = formats.data->scanline_pad / 8;
    }
    if (format.m_bytes < 2 || format.m_bytes > 4)
        return std::nullopt;
    return format;
}

std::size_t X11PixelFormat::stride(int width) const {
    const std::size_t used = static_cast<std::size_t>(width) * m_bytes;
    return (used + m_padBytes - 1) / m_padBytes * m_padBytes;
}

std::uint32_t X11PixelFormat::pixel(const std::uint8_t* row, int x) const {
    const std::uint8_t* at = row + static_cast<std::size_t>(x) * m_bytes;
    std::uint32_t value = 0;
    for (std::size_t index = 0; index < m_bytes; ++index) {
        const std::size_t place = m_bigEndian ? m_bytes - 1 - index : index;
        value |= static_cast<std::uint32_t>(at[index]) << (8 * place);
    }
    return value;
}

void X11PixelFormat::setPixel(std::uint8_t* row, int x, QRgb color) const {
    std::uint8_t* at = row + static_cast<std::size_t>(x) * m_bytes;
    const std::uint32_t value = channel(qRed(color), m_redMask) |
                                channel(qGreen(color), m_greenMask) |
                                channel(qBlue(color), m_blueMask);
    for (std::size_t index = 0; index < m_bytes; ++index) {
        const std::size_t place = m_bigEndian ? m_bytes - 1 - index : index;
        at[index] = static_cast<std::uint8_t>(value >> (8 * place));
    }
}

SRGBColor X11PixelFormat::color(std::uint32_t pixel) const {
    return {fraction(pixel, m_redMask), fraction(pixel, m_greenMask), fraction(pixel, m_blueMask)};
}

QRgb X11PixelFormat::rgb(std::uint32_t pixel) const {
    return qRgb(byte(pixel, m_redMask), byte(pixel, m_greenMask), byte(pixel, m_blueMask));
}

bool X11PixelFormat::isNativeRGB32() const {
    const bool hostBigEndian = std::endian::native == std::endian::big;
    return m_bytes == 4 && m_bigEndian == hostBigEndian && m_redMask == 0xFF0000 &&
           m_greenMask == 0xFF00 && m_blueMask == 0xFF;
}

} // namespace dropshade
