// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "color/SRGBColor.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace dropshade {
namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

TEST(SRGBColor, IsOpaqueBlackByDefault) {
    EXPECT_EQ(SRGBColor(), SRGBColor(0.0, 0.0, 0.0, 1.0));
}

TEST(SRGBColor, IsOpaqueWithoutAnAlpha) {
    EXPECT_EQ(SRGBColor(0.1, 0.2, 0.3).alpha(), 1.0);
}

TEST(SRGBColor, PinsAnAlphaOfFiftyToOne) {
    EXPECT_EQ(SRGBColor(0, 0, 0, 50).alpha(), 1.0);
}

TEST(SRGBColor, PinsANegativeRedToZero) {
    EXPECT_EQ(SRGBColor(-0.1, 0, 0).red(), 0.0);
}

TEST(SRGBColor, PinsEachComponentAtBothEnds) {
    EXPECT_EQ(SRGBColor(-1, 2, -infinity, infinity), SRGBColor(0, 1, 0, 1));
    EXPECT_EQ(SRGBColor(2, -1, infinity, -infinity), SRGBColor(1, 0, 1, 0));
}

TEST(SRGBColor, KeepsComponentsInsideTheRangeToTheLastBit) {
    const double nearOne = std::nextafter(1.0, 0.0);
    const double tiny = std::numeric_limits<double>::denorm_min();
    const SRGBColor color(nearOne, tiny, 1.0 / 3.0, 0.5);
    EXPECT_EQ(color.red(), nearOne);
    EXPECT_EQ(color.green(), tiny);
    EXPECT_EQ(color.blue(), 1.0 / 3.0);
    EXPECT_EQ(color.alpha(), 0.5);
}

TEST(SRGBColor, HoldsNoNegativeZero) {
    EXPECT_FALSE(std::signbit(SRGBColor(-0.0, 0, 0).red()));
}

TEST(SRGBColor, TurnsWhatIsNotANumberIntoZero) {
    EXPECT_EQ(SRGBColor(notANumber, notANumber, notANumber, notANumber), SRGBColor(0, 0, 0, 0));
}

TEST(SRGBColor, ComparesWithoutTolerance) {
    EXPECT_NE(SRGBColor(0.5, 0, 0), SRGBColor(std::nextafter(0.5, 1.0), 0, 0));
    EXPECT_NE(SRGBColor(0.5, 0, 0, 1.0), SRGBColor(0.5, 0, 0, 0.5));
}

} // namespace
} // namespace dropshade
