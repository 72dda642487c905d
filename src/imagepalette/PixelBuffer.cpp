// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "imagepalette/PixelBuffer.h"

#include <algorithm>
#include <cassert>
#include <cmath>

namespace dropshade {

namespace {

constexpr std::size_t bytesPerPixel = 4;
constexpr std::uint8_t faintestAlpha = 16;
constexpr std::uint8_t opaqueAlpha = 255;

std::uint8_t overWhite(std::uint8_t premultiplied, std::uint8_t alpha) {
    const double white = (1.0 - alpha / 255.0) * 255.0;
    return static_cast<std::uint8_t>(std::clamp(std::round(white + premultiplied), 0.0, 255.0));
}

} // namespace

PixelBuffer::PixelBuffer(std::vector<Pixel> pixels)
    : m_pixels(std::make_shared<const std::vector<Pixel>>(std::move(pixels))) {}

PixelBuffer PixelBuffer::fromPremultipliedRGBA(std::span<const std::uint8_t> rgba) {
    assert(rgba.size() % bytesPerPixel == 0);
    std::vector<Pixel> pixels;
    pixels.reserve(rgba.size() / bytesPerPixel);
    for (std::size_t at = 0; at + bytesPerPixel <= rgba.size(); at += bytesPerPixel) {
        const std::uint8_t alpha = rgba[at + 3];
        if (alpha < faintestAlpha)
            continue;
        Pixel pixel{rgba[at], rgba[at + 1], rgba[at + 2]};
        if (alpha != opaqueAlpha)
            pixel = {overWhite(pixel.red, alpha), overWhite(pixel.green, alpha),
                     overWhite(pixel.blue, alpha)};
        pixels.push_back(pixel);
    }
    return PixelBuffer(std::move(pixels));
}

} // namespace dropshade
