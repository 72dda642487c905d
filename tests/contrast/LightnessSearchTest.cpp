// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "contrast/LightnessSearch.h"

#include <gtest/gtest.h>

#include <random>

namespace dropshade {
namespace {

const SRGBColor middleGrey(0.5, 0.5, 0.5, 0.25);

TEST(RgbToHsl, ATieBetweenRedAndGreenCountsAsRed) {
    EXPECT_EQ(rgbToHsl(1.0, 1.0, 0.0), (HSLFractions{1.0 / 6.0, 1.0, 0.5}));
}

TEST(RgbToHsl, ATieBetweenGreenAndBlueCountsAsGreen) {
    EXPECT_EQ(rgbToHsl(0.0, 1.0, 1.0), (HSLFractions{3.0 / 6.0, 1.0, 0.5}));
}

TEST(RgbToHsl, PrimariesHaveTheirThirds) {
    EXPECT_EQ(rgbToHsl(1.0, 0.0, 0.0), (HSLFractions{0.0, 1.0, 0.5}));
    EXPECT_EQ(rgbToHsl(0.0, 1.0, 0.0), (HSLFractions{2.0 / 6.0, 1.0, 0.5}));
    EXPECT_EQ(rgbToHsl(0.0, 0.0, 1.0), (HSLFractions{4.0 / 6.0, 1.0, 0.5}));
    EXPECT_EQ(rgbToHsl(1.0, 0.0, 1.0), (HSLFractions{5.0 / 6.0, 1.0, 0.5}));
}

TEST(RgbToHsl, AGreyHasNeitherHueNorSaturation) {
    EXPECT_EQ(rgbToHsl(0.3, 0.3, 0.3), (HSLFractions{0.0, 0.0, 0.3}));
}

TEST(HslToRgb, AHueOfZeroStaysRed) {
    EXPECT_EQ(hslToRgb(0.0, 1.0, 0.5), SRGBColor(1.0, 0.0, 0.0));
    EXPECT_EQ(hslToRgb(0.0, 0.5, 0.25), SRGBColor(0.375, 0.125, 0.125));
}

TEST(HslToRgb, ClampsTheLightness) {
    EXPECT_EQ(hslToRgb(0.1, 0.5, -3.0), SRGBColor(0.0, 0.0, 0.0));
    EXPECT_EQ(hslToRgb(0.1, 0.5, 1.5), SRGBColor(1.0, 1.0, 1.0));
}

TEST(HslToRgb, BringsBackWhatRgbToHslTook) {
    constexpr unsigned seed = 4711;
    SCOPED_TRACE(testing::Message() << "seed " << seed);
    std::mt19937 generator(seed);
    std::uniform_real_distribution<double> component(0.0, 1.0);
    for (int round = 0; round < 10'000; ++round) {
        const SRGBColor color(component(generator), component(generator), component(generator));
        const HSLFractions hsl = rgbToHsl(color.red(), color.green(), color.blue());
        const SRGBColor back = hslToRgb(hsl.hue, hsl.saturation, hsl.lightness);
        ASSERT_NEAR(back.red(), color.red(), 1e-14);
        ASSERT_NEAR(back.green(), color.green(), 1e-14);
        ASSERT_NEAR(back.blue(), color.blue(), 1e-14);
    }
}

TEST(WithNearestPassingLightness, TakesTheNearerEnd) {
    const auto lighter = [](const SRGBColor& c) { return c.red() <= 0.125 || c.red() >= 0.75; };
    EXPECT_EQ(withNearestPassingLightness(middleGrey, lighter), SRGBColor(0.75, 0.75, 0.75, 0.25));
    const auto darker = [](const SRGBColor& c) { return c.red() <= 0.25 || c.red() >= 0.875; };
    EXPECT_EQ(withNearestPassingLightness(middleGrey, darker), SRGBColor(0.25, 0.25, 0.25, 0.25));
}

TEST(WithNearestPassingLightness, ATieGoesDark) {
    const auto both = [](const SRGBColor& c) { return c.red() <= 0.25 || c.red() >= 0.75; };
    EXPECT_EQ(withNearestPassingLightness(middleGrey, both), SRGBColor(0.25, 0.25, 0.25, 0.25));
}

TEST(WithNearestPassingLightness, OneAnswerIsTakenHoweverFar) {
    const auto dark = [](const SRGBColor& c) { return c.red() == 0.0; };
    const auto light = [](const SRGBColor& c) { return c.red() == 1.0; };
    EXPECT_LT(withNearestPassingLightness(middleGrey, dark)->red(), 1e-15);
    EXPECT_EQ(withNearestPassingLightness(middleGrey, light)->red(), 1.0);
}

TEST(WithNearestPassingLightness, LooksOnlyFromEndsThatPass) {
    const auto island = [](const SRGBColor& c) { return c.red() > 0.6 && c.red() < 0.7; };
    EXPECT_EQ(withNearestPassingLightness(middleGrey, island), std::nullopt);
}

TEST(WithNearestPassingLightness, MeasuresBothEndsSixtyMiddlesEachAndItsAnswerAgain) {
    int calls = 0;
    const auto counted = [&calls](const SRGBColor& c) {
        ++calls;
        return c.red() <= 0.25 || c.red() >= 0.75;
    };
    ASSERT_TRUE(withNearestPassingLightness(middleGrey, counted));
    EXPECT_EQ(calls, 2 * (1 + 60 + 1) + 1);
}

/// Passes as `c.red() >= 0.75` until its 62nd call, which it denies; then only from `later` on.
struct Fickle {
    double later;
    int* calls;

    bool operator()(const SRGBColor& c) const {
        // The first call is for the black end, which fails and ends that search.
        const int call = ++*calls;
        if (call <= 62)
            return c.red() >= 0.75;
        return call > 63 && c.red() >= later;
    }
};

TEST(WithNearestPassingLightness, WalksOnTowardTheEndWhenTheMeasureChangesItsMind) {
    int calls = 0;
    const auto found = withNearestPassingLightness(middleGrey, Fickle{0.7525, &calls});
    ASSERT_TRUE(found);
    EXPECT_NEAR(found->red(), 0.753, 1e-12);
}

TEST(WithNearestPassingLightness, AWalkEndsWhereTheLightnessDoes) {
    int calls = 0;
    const auto denied = [&calls](const SRGBColor& c) { return ++calls <= 62 && c.red() >= 0.9955; };
    EXPECT_FALSE(withNearestPassingLightness(middleGrey, denied));
    // The black end, the white end, sixty middles and the good one again; then 0.9965 to 0.9995.
    EXPECT_EQ(calls, 1 + 1 + 60 + 1 + 4);
}

TEST(WithNearestPassingLightness, WalksFiftyStepsAndNoMore) {
    int calls = 0;
    EXPECT_TRUE(withNearestPassingLightness(middleGrey, Fickle{0.7995, &calls}));
    calls = 0;
    EXPECT_FALSE(withNearestPassingLightness(middleGrey, Fickle{0.8005, &calls}));
}

} // namespace
} // namespace dropshade
