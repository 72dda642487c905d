// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "imagepalette/PixelBuffer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace dropshade {
namespace {

std::vector<Pixel> pixelsOf(const std::vector<std::uint8_t>& rgba) {
    const PixelBuffer buffer = PixelBuffer::fromPremultipliedRGBA(rgba);
    return {buffer.pixels().begin(), buffer.pixels().end()};
}

TEST(PixelBuffer, DropsPixelsOfAlphaBelowSixteen) {
    EXPECT_EQ(pixelsOf({5, 5, 5, 15}), std::vector<Pixel>{});
    EXPECT_EQ(pixelsOf({0, 0, 0, 0}), std::vector<Pixel>{});
    EXPECT_EQ(pixelsOf({5, 5, 5, 16}), (std::vector<Pixel>{{244, 244, 244}}));
}

TEST(PixelBuffer, TakesOpaquePixelsAsTheyAre) {
    EXPECT_EQ(pixelsOf({1, 2, 3, 255, 255, 0, 128, 255}),
              (std::vector<Pixel>{{1, 2, 3}, {255, 0, 128}}));
}

TEST(PixelBuffer, LaysTheOthersOverWhite) {
    EXPECT_EQ(pixelsOf({128, 0, 0, 128}), (std::vector<Pixel>{{255, 127, 127}}));
}

TEST(PixelBuffer, RoundsAndClampsLikeTheFormulaForEveryAlpha) {
    for (int alpha = 16; alpha < 255; ++alpha) {
        for (int channel = 0; channel <= 255; ++channel) {
            const double t = (1.0 - alpha / 255.0) * 255.0;
            const auto expected =
                static_cast<std::uint8_t>(std::min(std::round(t + channel), 255.0));
            const auto byte = static_cast<std::uint8_t>(channel);
            ASSERT_EQ(pixelsOf({byte, byte, byte, static_cast<std::uint8_t>(alpha)}),
                      (std::vector<Pixel>{{expected, expected, expected}}));
        }
    }
}

TEST(PixelBuffer, KeepsTheOrderOfMemory) {
    EXPECT_EQ(pixelsOf({1, 0, 0, 255, 0, 0, 0, 0, 2, 0, 0, 255, 3, 0, 0, 255}),
              (std::vector<Pixel>{{1, 0, 0}, {2, 0, 0}, {3, 0, 0}}));
}

TEST(PixelBuffer, ACopySharesThePixels) {
    const PixelBuffer buffer(std::vector<Pixel>{{1, 2, 3}});
    const PixelBuffer copy = buffer;
    EXPECT_EQ(copy.pixels().data(), buffer.pixels().data());
}

TEST(Pixel, IsThreeBytes) {
    EXPECT_EQ(sizeof(Pixel), 3u);
}

} // namespace
} // namespace dropshade
