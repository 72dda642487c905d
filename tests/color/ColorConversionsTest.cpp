// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "color/ColorConversions.h"

#include <gtest/gtest.h>

namespace dropshade {
namespace {

TEST(Rgba255, RoundsHalvesAwayFromZero) {
    EXPECT_EQ(rgba255(SRGBColor(0.5, 0.498, 1.0 / 255.0, 1.0)), (RGBA8{128, 127, 1, 255}));
}

} // namespace
} // namespace dropshade
