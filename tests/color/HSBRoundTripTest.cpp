// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "color/ColorConversions.h"

#include <gtest/gtest.h>

namespace dropshade {
namespace {

TEST(HsbToSRGB, GivesThePrimariesAndSecondaries) {
    EXPECT_EQ(rgba255(hsbToSRGB(0.0, 1.0, 1.0, 1.0)), (RGBA8{255, 0, 0, 255}));
    EXPECT_EQ(rgba255(hsbToSRGB(1.0 / 6.0, 1.0, 1.0, 1.0)), (RGBA8{255, 255, 0, 255}));
    EXPECT_EQ(rgba255(hsbToSRGB(2.0 / 6.0, 1.0, 1.0, 1.0)), (RGBA8{0, 255, 0, 255}));
    EXPECT_EQ(rgba255(hsbToSRGB(0.5, 1.0, 1.0, 1.0)), (RGBA8{0, 255, 255, 255}));
    EXPECT_EQ(rgba255(hsbToSRGB(4.0 / 6.0, 1.0, 1.0, 1.0)), (RGBA8{0, 0, 255, 255}));
    EXPECT_EQ(rgba255(hsbToSRGB(5.0 / 6.0, 1.0, 1.0, 0.5)), (RGBA8{255, 0, 255, 128}));
    EXPECT_EQ(hsbToSRGB(1.0, 1.0, 1.0, 1.0), SRGBColor(1.0, 0.0, 0.0));
}

TEST(HsbToSRGB, UndoesHsbComponentsForEightBitColors) {
    for (int red = 0; red <= 255; red += 5) {
        for (int green = 0; green <= 255; green += 5) {
            for (int blue = 0; blue <= 255; blue += 5) {
                const SRGBColor color(red / 255.0, green / 255.0, blue / 255.0);
                const HSBComponents hsb = hsbComponents(color);
                const SRGBColor back =
                    hsbToSRGB(hsb.hue, hsb.saturation, hsb.brightness, hsb.alpha);
                EXPECT_EQ(rgba255(back), rgba255(color));
            }
        }
    }
}

} // namespace
} // namespace dropshade
