// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "color/ColorFormat.h"
#include "color/ColorParser.h"

#include "support/Seed.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

namespace dropshade {
namespace {

constexpr int rounds = 50'000;

// A random colour of bytes, so that the integer forms lose nothing.
SRGBColor randomBytes(std::mt19937_64& random) {
    std::uniform_int_distribution<int> byte(0, 255);
    const auto component = [&] { return byte(random) / 255.0; };
    const double red = component();
    const double green = component();
    const double blue = component();
    return {red, green, blue, component()};
}

SRGBColor randomComponents(std::mt19937_64& random) {
    std::uniform_real_distribution<double> component(0.0, 1.0);
    const double red = component(random);
    const double green = component(random);
    const double blue = component(random);
    return {red, green, blue, component(random)};
}

class RoundTrip : public testing::Test {
protected:
    std::uint64_t seed = testSeed();
    testing::ScopedTrace trace{__FILE__, __LINE__, seedTrace(seed)};
    std::mt19937_64 random{seed};
};

// A lightness or saturation of CSS is off by half a tenth of a percent, a hue by half a degree. A
// channel is lightness + chroma × (a slope of 1 in 60 degrees from −1/2 to 1/2), and the chroma is
// at most twice the lightness and at most the saturation.
constexpr double hslTolerance = 2 * 0.0005 + 0.0005 / 2 + 0.5 / 60.0 + 1e-9;
constexpr double alphaTolerance = 0.005 + 1e-9;

void expectNear(const SRGBColor& actual, const SRGBColor& expected, double tolerance,
                const std::string& text) {
    ASSERT_NEAR(actual.red(), expected.red(), tolerance) << text;
    ASSERT_NEAR(actual.green(), expected.green(), tolerance) << text;
    ASSERT_NEAR(actual.blue(), expected.blue(), tolerance) << text;
}

TEST_F(RoundTrip, OfHexaLosesNothingWithAnyOptions) {
    for (int round = 0; round < rounds; ++round) {
        const SRGBColor color = randomBytes(random);
        FormatOptions options;
        options.useHashPrefix = round % 2 == 0;
        options.useLowercase = round % 4 < 2;
        const std::string text = formatted(color, ColorFormat::hexa, options);
        ASSERT_EQ(parseColor(text), color) << text;
    }
}

TEST_F(RoundTrip, OfOpaqueFormsLosesTheAlphaAlone) {
    for (int round = 0; round < rounds; ++round) {
        const SRGBColor color = randomBytes(random);
        const SRGBColor opaque(color.red(), color.green(), color.blue());
        for (const ColorFormat format : {ColorFormat::hex, ColorFormat::cssRGB}) {
            const std::string text = formatted(color, format, {});
            ASSERT_EQ(parseColor(text), opaque) << text;
        }
    }
}

TEST_F(RoundTrip, OfCssRGBAKeepsTheBytesAndTwoDecimalsOfAlpha) {
    for (int round = 0; round < rounds; ++round) {
        const SRGBColor color = randomBytes(random);
        const std::string text = formatted(color, ColorFormat::cssRGBA, {});
        const auto read = parseColor(text);
        ASSERT_TRUE(read) << text;
        expectNear(*read, color, 0.0, text);
        ASSERT_NEAR(read->alpha(), color.alpha(), alphaTolerance) << text;
    }
}

TEST_F(RoundTrip, OfCssHSLAndCssHSLAIsOffByTheirRoundingAtMost) {
    for (int round = 0; round < rounds; ++round) {
        const SRGBColor color = randomComponents(random);
        const bool hasAlpha = round % 2 == 0;
        const std::string text =
            formatted(color, hasAlpha ? ColorFormat::cssHSLA : ColorFormat::cssHSL, {});
        const auto read = parseColor(text);
        ASSERT_TRUE(read) << text;
        expectNear(*read, color, hslTolerance, text);
        ASSERT_NEAR(read->alpha(), hasAlpha ? color.alpha() : 1.0, alphaTolerance) << text;
    }
}

} // namespace
} // namespace dropshade
