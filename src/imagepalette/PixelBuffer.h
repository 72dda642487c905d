// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <vector>

namespace dropshade {

/// One opaque 8-bit sRGB colour.
struct Pixel {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;

    friend constexpr bool operator==(const Pixel&, const Pixel&) = default;
};

/// The pixels that the quantisers see: an image without its transparent parts and without its
/// shape. Never changes once built; a copy shares the pixels, so handing one to another thread is
/// safe and costs nothing.
class PixelBuffer {
public:
    /// The longer side, in pixels, that an image is reduced to first. So a buffer that is built
    /// from an image holds at most 40,000 pixels.
    static constexpr int longestSide = 200;

    explicit PixelBuffer(std::vector<Pixel> pixels);

    /// From packed rows of premultiplied red, green, blue and alpha, a byte each; `rgba` holds a
    /// whole number of pixels. Pixels of alpha below 16 are left out, opaque ones are taken as they
    /// are, the others are laid over white and rounded to nearest, halves away from zero.
    [[nodiscard]] static PixelBuffer fromPremultipliedRGBA(std::span<const std::uint8_t> rgba);

    [[nodiscard]] std::span<const Pixel> pixels() const { return *m_pixels; }

private:
    std::shared_ptr<const std::vector<Pixel>> m_pixels;
};

} // namespace dropshade
