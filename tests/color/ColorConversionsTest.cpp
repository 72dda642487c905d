// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "color/ColorConversions.h"

#include "support/RowName.h"
#include "support/Seed.h"

#include <gtest/gtest.h>

#include <cmath>
#include <ostream>
#include <random>

namespace dropshade {
namespace {

TEST(Rgba255, RoundsHalvesAwayFromZero) {
    EXPECT_EQ(rgba255(SRGBColor(0.5, 0.498, 1.0 / 255.0, 1.0)), (RGBA8{128, 127, 1, 255}));
}

TEST(Rgba255, TreatsAlphaLikeTheOthers) {
    EXPECT_EQ(rgba255(SRGBColor(0, 0, 0, 0.5)), (RGBA8{0, 0, 0, 128}));
}

TEST(Rgba255, GivesEveryByteBack) {
    for (std::int64_t byte = 0; byte <= 255; ++byte) {
        const double component = static_cast<double>(byte) / 255.0;
        EXPECT_EQ(rgba255(SRGBColor(component, component, component, component)),
                  (RGBA8{byte, byte, byte, byte}));
    }
}

TEST(HslComponents, OfWhite) {
    EXPECT_EQ(hslComponents(1, 1, 1), (HSLComponents{0, 0, 1}));
}

TEST(HslComponents, OfBlack) {
    EXPECT_EQ(hslComponents(0, 0, 0), (HSLComponents{0, 0, 0}));
}

TEST(HslComponents, OfAGreyHaveNoHueAndNoSaturation) {
    EXPECT_EQ(hslComponents(0.3, 0.3, 0.3), (HSLComponents{0, 0, 0.3}));
}

TEST(HslComponents, OfPureGreen) {
    EXPECT_EQ(hslComponents(0, 1, 0), (HSLComponents{120, 1, 0.5}));
}

TEST(HslComponents, OfPureBlue) {
    EXPECT_EQ(hslComponents(0, 0, 1), (HSLComponents{240, 1, 0.5}));
}

TEST(HslComponents, OfMagenta) {
    EXPECT_EQ(hslComponents(1, 0, 1), (HSLComponents{300, 1, 0.5}));
}

TEST(HslComponents, TakeRedFirstOnATie) {
    EXPECT_EQ(hslComponents(1, 1, 0).hue, 60);
}

TEST(HslComponents, TakeGreenBeforeBlueOnATie) {
    EXPECT_EQ(hslComponents(0, 1, 1).hue, 180);
}

TEST(HslComponents, DivideByTheSumAtALightnessOfOneHalf) {
    EXPECT_EQ(hslComponents(0.75, 0.5, 0.25).saturation, 0.5);
}

TEST(HslComponents, KeepAHueJustBelowTheFullTurnBelowIt) {
    const double hue = hslComponents(1, 0, 0.001).hue;
    EXPECT_LT(hue, 360.0);
    EXPECT_NEAR(hue, 359.94, 1e-9);
}

TEST(HslComponents, KeepAHueAHairBelowTheFullTurnBelowIt) {
    EXPECT_LT(hslComponents(1, 0, 1e-300).hue, 360.0);
    EXPECT_LT(hsbComponents(SRGBColor(1, 0, 1e-300)).hue, 1.0);
}

TEST(HueChannel, TakesOneStepUpFromBelowZero) {
    EXPECT_EQ(hueChannel(0.1, 0.9, -0.25), 0.1);
}

TEST(HueChannel, TakesOneStepDownFromAboveOne) {
    EXPECT_EQ(hueChannel(0.1, 0.9, 1.25), 0.9);
}

TEST(HueChannel, LeavesWhatIsFurtherOutAlone) {
    EXPECT_EQ(hueChannel(0.1, 0.9, 2.25), 0.1);
    EXPECT_NEAR(hueChannel(0.1, 0.9, -1.25), 0.1 + 0.8 * 6.0 * -0.25, 1e-15);
}

TEST(HueChannel, RisesInTheFirstSixth) {
    EXPECT_NEAR(hueChannel(0, 1, 1.0 / 12.0), 0.5, 1e-15);
}

TEST(HueChannel, FallsBetweenOneHalfAndTwoThirds) {
    EXPECT_NEAR(hueChannel(0, 1, 7.0 / 12.0), 0.5, 1e-15);
}

TEST(HslToSRGB, GivesTheLightnessWithoutASaturation) {
    EXPECT_EQ(hslToSRGB(0.7, 0, 0.5, 0.25), SRGBColor(0.5, 0.5, 0.5, 0.25));
}

TEST(HslToSRGB, PinsWhatComesOutOfRange) {
    EXPECT_EQ(hslToSRGB(0.0, 2.0, 0.5, 3.0), SRGBColor(1, 0, 0, 1));
}

TEST(HslChannels, AreNotPinned) {
    const RGBChannels channels = hslChannels(0.0, 2.0, 0.5);
    EXPECT_EQ(channels.red, 1.5);
    EXPECT_EQ(channels.blue, -0.5);
}

TEST(HsbComponents, OfBlackHaveNoSaturation) {
    EXPECT_EQ(hsbComponents(SRGBColor(0, 0, 0, 0.5)), (HSBComponents{0, 0, 0, 0.5}));
}

TEST(HsbComponents, OfAGreyHaveNoHue) {
    EXPECT_EQ(hsbComponents(SRGBColor(0.4, 0.4, 0.4)), (HSBComponents{0, 0, 0.4, 1}));
}

TEST(HsbComponents, GiveTheHueAsAFractionOfATurn) {
    EXPECT_EQ(hsbComponents(SRGBColor(0, 0, 1)).hue, 240.0 / 360.0);
}

struct PublishedModels {
    const char* name;
    double red, green, blue;
    double hue, brightness, lightness, hsbSaturation, hslSaturation;
};

void PrintTo(const PublishedModels& row, std::ostream* stream) {
    *stream << row.name;
}

class PublishedColor : public testing::TestWithParam<PublishedModels> {};

// Every figure of the source is rounded to three decimals and the hue to one.
TEST_P(PublishedColor, HasThePublishedHueSaturationsBrightnessAndLightness) {
    const PublishedModels& row = GetParam();
    constexpr double rounding = 0.0005;
    const double range =
        std::max({row.red, row.green, row.blue}) - std::min({row.red, row.green, row.blue});
    // A sextant is a difference of two rounded components over the range, which is rounded too.
    const double hueTolerance = 0.05 + (range > 0.0 ? 60.0 * 4.0 * rounding / range : 0.0);
    // A saturation divides the rounded range by no less than what it came from.
    const double saturationTolerance =
        rounding + (range > 0.0 ? 4.0 * rounding * row.hslSaturation / range : 0.0);
    const HSLComponents hsl = hslComponents(row.red, row.green, row.blue);
    const HSBComponents hsb = hsbComponents(SRGBColor(row.red, row.green, row.blue));
    EXPECT_NEAR(hsl.hue, row.hue, hueTolerance);
    EXPECT_NEAR(hsb.hue * 360.0, row.hue, hueTolerance);
    EXPECT_NEAR(hsl.lightness, row.lightness, 2.0 * rounding);
    EXPECT_NEAR(hsb.brightness, row.brightness, 2.0 * rounding);
    EXPECT_NEAR(hsl.saturation, row.hslSaturation, saturationTolerance);
    EXPECT_NEAR(hsb.saturation, row.hsbSaturation, saturationTolerance);
}

// The table of examples in Wikipedia's article "HSL and HSV".
INSTANTIATE_TEST_SUITE_P(
    HslAndHsv, PublishedColor,
    testing::Values(
        PublishedModels{"White", 1, 1, 1, 0, 1, 1, 0, 0},
        PublishedModels{"Grey", 0.5, 0.5, 0.5, 0, 0.5, 0.5, 0, 0},
        PublishedModels{"Black", 0, 0, 0, 0, 0, 0, 0, 0},
        PublishedModels{"Red", 1, 0, 0, 0, 1, 0.5, 1, 1},
        PublishedModels{"Olive", 0.75, 0.75, 0, 60, 0.75, 0.375, 1, 1},
        PublishedModels{"Green", 0, 0.5, 0, 120, 0.5, 0.25, 1, 1},
        PublishedModels{"PaleCyan", 0.5, 1, 1, 180, 1, 0.75, 0.5, 1},
        PublishedModels{"PaleBlue", 0.5, 0.5, 1, 240, 1, 0.75, 0.5, 1},
        PublishedModels{"Purple", 0.75, 0.25, 0.75, 300, 0.75, 0.5, 0.667, 0.5},
        PublishedModels{"A0A424", 0.628, 0.643, 0.142, 61.8, 0.643, 0.393, 0.779, 0.638},
        PublishedModels{"411BEA", 0.255, 0.104, 0.918, 251.1, 0.918, 0.511, 0.887, 0.832},
        PublishedModels{"1EAC41", 0.116, 0.675, 0.255, 134.9, 0.675, 0.396, 0.828, 0.707},
        PublishedModels{"F0C80E", 0.941, 0.785, 0.053, 49.5, 0.941, 0.497, 0.944, 0.893},
        PublishedModels{"B430E5", 0.704, 0.187, 0.897, 283.7, 0.897, 0.542, 0.792, 0.775},
        PublishedModels{"ED7651", 0.931, 0.463, 0.316, 14.3, 0.931, 0.624, 0.661, 0.817},
        PublishedModels{"FEF888", 0.998, 0.974, 0.532, 56.9, 0.998, 0.765, 0.467, 0.991},
        PublishedModels{"19CB97", 0.099, 0.795, 0.591, 162.4, 0.795, 0.447, 0.875, 0.779},
        PublishedModels{"362698", 0.211, 0.149, 0.597, 248.3, 0.597, 0.373, 0.750, 0.601},
        PublishedModels{"7E7EB8", 0.495, 0.493, 0.721, 240.5, 0.721, 0.607, 0.316, 0.290}),
    rowName);

TEST(HslToSRGB, UndoesHslComponents) {
    const std::uint64_t seed = testSeed();
    SCOPED_TRACE(seedTrace(seed));
    std::mt19937_64 random(seed);
    std::uniform_real_distribution<double> component(0.0, 1.0);
    for (int round = 0; round < 20'000; ++round) {
        const double red = component(random);
        const double green = component(random);
        const double blue = component(random);
        const auto [hue, saturation, lightness] = hslComponents(red, green, blue);
        const SRGBColor color = hslToSRGB(hue / 360.0, saturation, lightness, 1.0);
        ASSERT_NEAR(color.red(), red, 1e-14);
        ASSERT_NEAR(color.green(), green, 1e-14);
        ASSERT_NEAR(color.blue(), blue, 1e-14);
    }
}

TEST(HslComponents, StayInTheirRanges) {
    const std::uint64_t seed = testSeed();
    SCOPED_TRACE(seedTrace(seed));
    std::mt19937_64 random(seed);
    // Powers crowd the components at 0, where divisions are at their worst.
    std::uniform_real_distribution<double> exponent(-320.0, 0.0);
    for (int round = 0; round < 20'000; ++round) {
        const SRGBColor color(std::pow(10.0, exponent(random)), std::pow(10.0, exponent(random)),
                              1.0 - std::pow(10.0, exponent(random)));
        const HSLComponents hsl = hslComponents(color.red(), color.green(), color.blue());
        ASSERT_TRUE(hsl.hue >= 0.0 && hsl.hue < 360.0) << hsl.hue;
        ASSERT_TRUE(hsl.saturation >= 0.0 && hsl.saturation <= 1.0) << hsl.saturation;
        ASSERT_TRUE(hsl.lightness >= 0.0 && hsl.lightness <= 1.0) << hsl.lightness;
        ASSERT_LT(hsbComponents(color).hue, 1.0);
    }
}

} // namespace
} // namespace dropshade
