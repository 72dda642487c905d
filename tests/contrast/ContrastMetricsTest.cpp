// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "contrast/ContrastMetrics.h"
#include "contrast/ContrastAlgorithm.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>

namespace dropshade {
namespace {

const SRGBColor black(0.0, 0.0, 0.0);
const SRGBColor white(1.0, 1.0, 1.0);

SRGBColor fromHex(std::uint32_t rgb) {
    return {(rgb >> 16 & 0xFF) / 255.0, (rgb >> 8 & 0xFF) / 255.0, (rgb & 0xFF) / 255.0};
}

double lcOf(const SRGBColor& text, const SRGBColor& background) {
    return apcaLc(apcaLuminance(text), apcaLuminance(background));
}

struct ReferencePair {
    std::uint32_t text;
    std::uint32_t background;
    double ratio;
    double lc;
};

constexpr ReferencePair referencePairs[] = {
#include "contrast/ContrastReferencePairs.inc"
};

TEST(RelativeLuminance, WhiteIsExactlyOneAndBlackExactlyZero) {
    EXPECT_EQ(relativeLuminance(white), 1.0);
    EXPECT_EQ(relativeLuminance(black), 0.0);
}

TEST(RelativeLuminance, ABreakpointComponentTakesTheLinearSegment) {
    const double breakpoint = 0.04045;
    EXPECT_EQ(relativeLuminance(breakpoint, 0.0, 0.0), breakpoint / 12.92 * 0.2126);
    const double above = std::nextafter(breakpoint, 1.0);
    EXPECT_EQ(relativeLuminance(above, 0.0, 0.0), std::pow((above + 0.055) / 1.055, 2.4) * 0.2126);
}

TEST(RelativeLuminance, EachPrimaryHasItsFourDigitWeight) {
    EXPECT_EQ(relativeLuminance(1.0, 0.0, 0.0), 0.2126);
    EXPECT_EQ(relativeLuminance(0.0, 1.0, 0.0), 0.7152);
    EXPECT_EQ(relativeLuminance(0.0, 0.0, 1.0), 0.0722);
}

TEST(RelativeLuminance, AByteHasTheBitsOfItsFormulaAndSoHaveItsNeighbours) {
    const auto linear = [](double component) {
        return component <= 0.04045 ? component / 12.92
                                    : std::pow((component + 0.055) / 1.055, 2.4);
    };
    for (int byte = 0; byte <= 255; ++byte) {
        const double component = byte / 255.0;
        for (const double near :
             {std::nextafter(component, -1.0), component, std::nextafter(component, 2.0)})
            EXPECT_EQ(relativeLuminance(0.0, near, 0.0), linear(near) * 0.7152) << byte;
    }
}

TEST(RelativeLuminance, DoesNotClampComponentsOfAWiderSpace) {
    EXPECT_GT(relativeLuminance(1.2, 1.0, 1.0), 1.0);
    EXPECT_EQ(relativeLuminance(-0.1, 0.0, 0.0), -0.1 / 12.92 * 0.2126);
}

TEST(ContrastRatio, BlackAgainstWhiteIsExactlyTwentyOneInEitherOrder) {
    EXPECT_EQ(contrastRatio(black, white), 21.0);
    EXPECT_EQ(contrastRatio(white, black), 21.0);
}

TEST(ContrastRatio, EqualColorsHaveExactlyOne) {
    for (const std::uint32_t rgb : {0x000000u, 0x123456u, 0x888888u, 0xABCDEFu, 0xFFFFFFu})
        EXPECT_EQ(contrastRatio(fromHex(rgb), fromHex(rgb)), 1.0);
}

TEST(ContrastRatio, MidGreyIsBetweenBlackAndWhite) {
    EXPECT_NEAR(contrastRatio(fromHex(0x888888), white), 3.54, 0.005);
    EXPECT_NEAR(contrastRatio(fromHex(0x888888), black), 5.92, 0.005);
    EXPECT_NEAR(contrastRatio(fromHex(0x777777), black), 4.69, 0.005);
    EXPECT_NEAR(contrastRatio(fromHex(0x777777), white), 4.48, 0.005);
}

TEST(ContrastRatio, EqualsTheReferenceTableInBothOrders) {
    ASSERT_GE(std::size(referencePairs), 300u);
    for (const ReferencePair& pair : referencePairs) {
        SCOPED_TRACE(testing::Message() << std::hex << pair.text << " on " << pair.background);
        const double tolerance = pair.ratio * 1e-13;
        EXPECT_NEAR(contrastRatio(fromHex(pair.text), fromHex(pair.background)), pair.ratio,
                    tolerance);
        EXPECT_NEAR(contrastRatio(fromHex(pair.background), fromHex(pair.text)), pair.ratio,
                    tolerance);
    }
}

TEST(ContrastRatio, IgnoresAlpha) {
    const SRGBColor glass(0.2, 0.4, 0.6, 0.1);
    EXPECT_EQ(contrastRatio(glass, white), contrastRatio(SRGBColor(0.2, 0.4, 0.6), white));
    EXPECT_EQ(apcaLuminance(glass), apcaLuminance(SRGBColor(0.2, 0.4, 0.6)));
}

TEST(ApcaLuminance, HasNoLinearSegmentAndSevenDigitWeights) {
    EXPECT_EQ(apcaLuminance(0.01, 0.0, 0.0), std::pow(0.01, 2.4) * 0.2126729);
    EXPECT_EQ(apcaLuminance(0.0, 1.0, 0.0), 0.7151522);
    EXPECT_EQ(apcaLuminance(0.0, 0.0, 1.0), 0.072175);
}

TEST(ApcaLuminance, ClampsComponentsOfAWiderSpace) {
    EXPECT_EQ(apcaLuminance(1.3, 2.0, 1.0), apcaLuminance(white));
    EXPECT_EQ(apcaLuminance(-0.3, -2.0, 0.0), 0.0);
}

struct PublishedLc {
    const char* name;
    std::uint32_t text;
    std::uint32_t background;
    double lc;
};

class PublishedApcaPairs : public testing::TestWithParam<PublishedLc> {};

TEST_P(PublishedApcaPairs, AreReproduced) {
    const PublishedLc& pair = GetParam();
    EXPECT_NEAR(lcOf(fromHex(pair.text), fromHex(pair.background)), pair.lc, 1e-11);
}

// The test values that the authors publish with APCA-W3 0.1.9.
INSTANTIATE_TEST_SUITE_P(
    ApcaW3, PublishedApcaPairs,
    testing::Values(PublishedLc{"GreyOnWhite", 0x888888, 0xFFFFFF, 63.056469930209424},
                    PublishedLc{"WhiteOnGrey", 0xFFFFFF, 0x888888, -68.54146436644962},
                    PublishedLc{"BlackOnLightGrey", 0x000000, 0xAAAAAA, 58.146262578561334},
                    PublishedLc{"LightGreyOnBlack", 0xAAAAAA, 0x000000, -56.24113336839742},
                    PublishedLc{"NavyOnPaleBlue", 0x112233, 0xDDEEFF, 91.66830811481631},
                    PublishedLc{"PaleBlueOnNavy", 0xDDEEFF, 0x112233, -93.06770049484275},
                    PublishedLc{"NavyOnDarkGrey", 0x112233, 0x444444, 8.32326136957393},
                    PublishedLc{"DarkGreyOnNavy", 0x444444, 0x112233, -7.526878460278154}),
    [](const auto& row) { return row.param.name; });

TEST(ApcaLc, EqualsTheReferenceTable) {
    for (const ReferencePair& pair : referencePairs) {
        SCOPED_TRACE(testing::Message() << std::hex << pair.text << " on " << pair.background);
        EXPECT_NEAR(lcOf(fromHex(pair.text), fromHex(pair.background)), pair.lc, 1e-11);
    }
}

TEST(ApcaLc, BlackAndWhiteExceedAHundredInBothPolarities) {
    EXPECT_NEAR(lcOf(black, white), 106.04, 0.005);
    EXPECT_NEAR(lcOf(white, black), -107.88, 0.005);
}

TEST(ApcaLc, EqualColorsHaveExactlyZero) {
    EXPECT_EQ(lcOf(black, black), 0.0);
    EXPECT_EQ(lcOf(white, white), 0.0);
    EXPECT_EQ(lcOf(fromHex(0x336699), fromHex(0x336699)), 0.0);
}

TEST(ApcaLc, LuminancesCloserThanALittleHaveZeroThoughTheirRatioIsAboveOne) {
    const SRGBColor first = fromHex(0x808080);
    const SRGBColor second = fromHex(0x808081);
    ASSERT_LT(std::abs(apcaLuminance(first) - apcaLuminance(second)), 0.0005);
    EXPECT_EQ(lcOf(first, second), 0.0);
    EXPECT_EQ(lcOf(second, first), 0.0);
    EXPECT_GT(contrastRatio(first, second), 1.0);
}

TEST(ApcaLc, NeverHasAMagnitudeBelowItsFloor) {
    bool sawZero = false;
    bool sawSmall = false;
    for (int text = 0; text <= 255; ++text) {
        for (int background = 0; background <= 255; ++background) {
            const double lc =
                apcaLc(apcaLuminance(text / 255.0, text / 255.0, text / 255.0),
                       apcaLuminance(background / 255.0, background / 255.0, background / 255.0));
            sawZero |= lc == 0.0 && text != background;
            sawSmall |= std::abs(lc) > 7.3 - 1e-9 && std::abs(lc) < 8.0;
            ASSERT_TRUE(lc == 0.0 || std::abs(lc) >= 7.3 - 1e-9) << text << " on " << background;
        }
    }
    EXPECT_TRUE(sawZero);
    EXPECT_TRUE(sawSmall);
}

TEST(IsLargeText, NeedsEighteenPointsOrFourteenBold) {
    EXPECT_TRUE(isLargeText(14.0, fontWeight::bold));
    EXPECT_FALSE(isLargeText(14.0, fontWeight::semibold));
    EXPECT_FALSE(isLargeText(13.9, fontWeight::bold));
    EXPECT_TRUE(isLargeText(18.0, fontWeight::regular));
    EXPECT_FALSE(isLargeText(17.9, fontWeight::regular));
}

TEST(FontWeight, RisesFromRegularToBold) {
    EXPECT_EQ(fontWeight::regular, 0.0);
    EXPECT_LT(fontWeight::regular, fontWeight::medium);
    EXPECT_LT(fontWeight::medium, fontWeight::semibold);
    EXPECT_LT(fontWeight::semibold, fontWeight::bold);
}

TEST(WcagThresholds, AreLowerForLargeText) {
    EXPECT_EQ(wcagThresholds(16.0, fontWeight::regular), (WCAGThresholds{4.5, 7.0}));
    EXPECT_EQ(wcagThresholds(24.0, fontWeight::semibold), (WCAGThresholds{3.0, 4.5}));
}

TEST(PassesRatio, ComparesTheUnroundedRatio) {
    EXPECT_TRUE(passesRatio(4.5, 4.5));
    EXPECT_FALSE(passesRatio(std::nextafter(4.5, 0.0), 4.5));
    EXPECT_FALSE(passesRatio(4.499, 4.5));
}

TEST(PassesLc, ComparesTheUnroundedMagnitude) {
    EXPECT_TRUE(passesLc(75.0, 75.0));
    EXPECT_TRUE(passesLc(-75.0, 75.0));
    EXPECT_FALSE(passesLc(74.9, 75.0));
    EXPECT_FALSE(passesLc(-74.9, 75.0));
}

TEST(ApcaTiers, AreThreeAndFallFromTextToGraphics) {
    ASSERT_EQ(apcaTiers.size(), 3u);
    EXPECT_EQ(apcaTiers[0].name, "Normal text");
    EXPECT_EQ(apcaTiers[0].minimumLc, 75.0);
    EXPECT_EQ(apcaTiers[1].name, "Large text");
    EXPECT_EQ(apcaTiers[1].minimumLc, 45.0);
    EXPECT_EQ(apcaTiers[2].name, "Graphics and UI");
    EXPECT_EQ(apcaTiers[2].minimumLc, 30.0);
}

TEST(PrefersLightInk, TakesTheInkOfTheHigherRatio) {
    EXPECT_TRUE(prefersLightInk(black));
    EXPECT_FALSE(prefersLightInk(white));
    EXPECT_FALSE(prefersLightInk(fromHex(0x777777)));
    EXPECT_TRUE(prefersLightInk(fromHex(0x757575)));
    EXPECT_TRUE(prefersLightInk(fromHex(0x0000FF)));
    EXPECT_FALSE(prefersLightInk(fromHex(0xFFFF00)));
}

TEST(PrefersLightInk, OnATieInkIsBlack) {
    // A colour on which white and black have the same ratio to the last bit.
    const auto against = [](double blue, const SRGBColor& ink) {
        return contrastRatio(SRGBColor(0.4, 0.4, blue), ink);
    };
    double blue = 0.0;
    double lighter = 1.0;
    while ((blue + lighter) * 0.5 != blue && (blue + lighter) * 0.5 != lighter) {
        const double middle = (blue + lighter) * 0.5;
        (against(middle, black) < against(middle, white) ? blue : lighter) = middle;
    }
    for (int step = 0; step < 100 && against(blue, black) != against(blue, white); ++step)
        blue = std::nextafter(blue, 1.0);
    ASSERT_EQ(against(blue, black), against(blue, white));
    EXPECT_FALSE(prefersLightInk(SRGBColor(0.4, 0.4, blue)));
}

TEST(ContrastAlgorithms, HaveTheirStoredAndShownNames) {
    ASSERT_EQ(contrastAlgorithms.size(), 2u);
    EXPECT_EQ(contrastAlgorithms[0].algorithm, ContrastAlgorithm::wcag);
    EXPECT_EQ(contrastAlgorithms[0].rawValue, "wcag");
    EXPECT_EQ(contrastAlgorithms[0].displayName, "WCAG 2");
    EXPECT_EQ(contrastAlgorithms[1].algorithm, ContrastAlgorithm::apca);
    EXPECT_EQ(contrastAlgorithms[1].rawValue, "apca");
    EXPECT_EQ(contrastAlgorithms[1].displayName, "APCA");
}

} // namespace
} // namespace dropshade
