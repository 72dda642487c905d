// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "color/ColorParser.h"

#include "color/ColorConversions.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <ostream>
#include <string>

namespace dropshade {

void PrintTo(const SRGBColor& color, std::ostream* stream) {
    *stream << color.red() << ' ' << color.green() << ' ' << color.blue() << " / " << color.alpha();
}

namespace {

using namespace std::string_view_literals;

constexpr auto nothing = std::nullopt;

SRGBColor bytes(int red, int green, int blue, double alpha = 1.0) {
    return {red / 255.0, green / 255.0, blue / 255.0, alpha};
}

TEST(ParseColor, DoublesThreeDigitsToSix) {
    EXPECT_EQ(parseColor("#F0A"), bytes(255, 0, 0xAA));
}

TEST(ParseColor, DoublesFourDigitsToEight) {
    EXPECT_EQ(parseColor("#FF00"), bytes(255, 255, 0, 0.0));
    EXPECT_EQ(parseColor("F0A8"), bytes(255, 0, 0xAA, 0x88 / 255.0));
}

TEST(ParseColor, NeedsNoHash) {
    EXPECT_EQ(parseColor("f0a"), bytes(255, 0, 0xAA));
    EXPECT_EQ(parseColor("ff0080"), bytes(255, 0, 128));
    EXPECT_EQ(parseColor("ff008080"), bytes(255, 0, 128, 128 / 255.0));
}

TEST(ParseColor, TrimsTheEnds) {
    EXPECT_EQ(parseColor("  #ff0080  "), bytes(255, 0, 128));
    EXPECT_EQ(parseColor("\u00A0\r\n#ff0080\u3000\t\u2029"), bytes(255, 0, 128));
    EXPECT_EQ(parseColor("\n red \n"), bytes(255, 0, 0));
}

TEST(ParseColor, ReadsTheAlphaByteLast) {
    EXPECT_EQ(parseColor("#FF008080"), bytes(255, 0, 128, 128 / 255.0));
    EXPECT_EQ(parseColor("#01020304"), bytes(1, 2, 3, 4 / 255.0));
}

TEST(ParseColor, TakesHexDigitsOfBothCases) {
    EXPECT_EQ(parseColor("#aBcDeF"), bytes(0xAB, 0xCD, 0xEF));
}

TEST(ParseColor, ReadsAWordOfHexDigitsAsHex) {
    EXPECT_EQ(parseColor("fade"), bytes(0xFF, 0xAA, 0xDD, 0xEE / 255.0));
    EXPECT_EQ(parseColor("BAD"), bytes(0xBB, 0xAA, 0xDD));
}

TEST(ParseColor, MatchesNamesInAnyCase) {
    EXPECT_EQ(parseColor("RED"), bytes(255, 0, 0));
    EXPECT_EQ(parseColor("Rebeccapurple"), bytes(0x66, 0x33, 0x99));
}

TEST(ParseColor, LowersTheKelvinSignToTheLetterItIs) {
    EXPECT_EQ(parseColor("PIN\u212A"), parseColor("pink"));
    EXPECT_EQ(parseColor("\u212Aha\u212Ai"), parseColor("khaki"));
    EXPECT_EQ(parseColor("\u212A"), nothing);
}

TEST(ParseColor, AcceptsCommasOrBlanksInBothNames) {
    for (const char* const text :
         {"rgb(255, 0, 128)", "rgb(255 0 128)", "RGB(255 0 128)", "rgba(255, 0, 128)",
          "rgba(255 0 128)", "rgb(255,0,128)", "rgb( 255 , 0 , 128 )", "rgb(255/0/128)",
          "rgb(255\n0\t128)", "rgb(255\u00A00\u2003128)", "rgb(,255,,0,128,)"})
        EXPECT_EQ(parseColor(text), bytes(255, 0, 128)) << text;
}

TEST(ParseColor, ReadsTheFourthValueAsAlpha) {
    for (const char* const text :
         {"rgb(255 0 128 / 0.5)", "rgba(255, 0, 128, 0.5)", "rgb(255 0 128 0.5)",
          "rgb(255, 0, 128, 0.5)", "rgb(255 0 128/0.5)", "rgb(255, 0, 128, 0.5 /)"})
        EXPECT_EQ(parseColor(text), bytes(255, 0, 128, 0.5)) << text;
}

TEST(ParseColor, TakesAnAlphaThatIsNoNumberForOpaque) {
    EXPECT_EQ(parseColor("rgba(0 0 0 / abc)"), bytes(0, 0, 0));
    EXPECT_EQ(parseColor("rgba(0, 0, 0, )"), bytes(0, 0, 0));
    EXPECT_EQ(parseColor("rgba(0 0 0 / %)"), bytes(0, 0, 0));
    EXPECT_EQ(parseColor("hsl(0 0 0 / abc)"), bytes(0, 0, 0));
}

TEST(ParseColor, TakesAnAlphaThatIsNotANumberForOpaque) {
    EXPECT_EQ(parseColor("rgba(0 0 0 / nan)"), bytes(0, 0, 0));
    EXPECT_EQ(parseColor("hsla(0 0 0 / -NaN)"), bytes(0, 0, 0));
}

TEST(ParseColor, DoesNotScaleAPercentageOfAlpha) {
    EXPECT_EQ(parseColor("rgba(0 0 0 / 50%)"), bytes(0, 0, 0, 1.0));
    EXPECT_EQ(parseColor("rgba(0 0 0 / 0.5%)"), bytes(0, 0, 0, 0.5));
    EXPECT_EQ(parseColor("rgba(0 0 0 / -50%)"), bytes(0, 0, 0, 0.0));
    EXPECT_EQ(parseColor("hsla(0 0 0 / 25%)"), bytes(0, 0, 0, 1.0));
}

TEST(ParseColor, RemovesPercentSignsAnywhereInAlpha) {
    EXPECT_EQ(parseColor("rgba(0 0 0 / %0%.%5%)"), bytes(0, 0, 0, 0.5));
}

TEST(ParseColor, ClampsRedGreenAndBlue) {
    EXPECT_EQ(parseColor("rgb(300 -5 0)"), SRGBColor(1, 0, 0));
    EXPECT_EQ(parseColor("rgb(inf -inf 1e999)"), SRGBColor(1, 0, 1));
}

TEST(ParseColor, KeepsFractionsOfRedGreenAndBlue) {
    EXPECT_EQ(parseColor("rgb(127.5 0.25 3e1)"), SRGBColor(0.5, 0.25 / 255.0, 30.0 / 255.0));
}

TEST(ParseColor, ReadsWhateverStrtodReads) {
    EXPECT_EQ(parseColor("rgb(+255 0x80 .5e1 / 0x.8)"), bytes(255, 128, 5, 0.5));
}

TEST(ParseColor, RefusesPercentagesOfRedGreenAndBlue) {
    EXPECT_EQ(parseColor("rgb(100% 0% 0%)"), nothing);
}

TEST(ParseColor, RefusesFewerThanThreeAndMoreThanFourValues) {
    EXPECT_EQ(parseColor("rgb(1 2)"), nothing);
    EXPECT_EQ(parseColor("rgb(1 2 3 4 5)"), nothing);
    EXPECT_EQ(parseColor("rgb(1, 2, 3, 4, 5)"), nothing);
    EXPECT_EQ(parseColor("hsl(1 2)"), nothing);
    EXPECT_EQ(parseColor("hsl(1, 2, 3, 4, 5)"), nothing);
}

TEST(ParseColor, NeedsBothBracketsAndSomethingBetween) {
    for (const char* const text : {"rgb(1 2 3", "rgb 1 2 3)", "rgb()", "rgb(", "rgb", "rgb)1 2 3(",
                                   "hsl(1 2 3", "hsl()", "rgb( )", "rgb(,,,)", "rgb(///)"})
        EXPECT_EQ(parseColor(text), nothing) << text;
}

TEST(ParseColor, NeedsTheBracketRightBehindTheName) {
    EXPECT_EQ(parseColor("rgb (1 2 3)"), nothing);
    EXPECT_EQ(parseColor("rgbaa(1 2 3)"), nothing);
    EXPECT_EQ(parseColor("hslb(1 2 3)"), nothing);
    EXPECT_EQ(parseColor("argb(1 2 3)"), nothing);
}

TEST(ParseColor, IgnoresWhatFollowsTheLastBracket) {
    EXPECT_EQ(parseColor("rgb(1 2 3) and more"), bytes(1, 2, 3));
    EXPECT_EQ(parseColor("rgb(1 2 3);"), bytes(1, 2, 3));
}

TEST(ParseColor, ReadsUpToTheLastBracket) {
    EXPECT_EQ(parseColor("rgb(1 2 3) and (4)"), nothing);
    EXPECT_EQ(parseColor("rgb((1 2 3))"), nothing);
}

TEST(ParseColor, DoesNotCombineCommasAndTheSlash) {
    // The last of three values is "3   0.5".
    EXPECT_EQ(parseColor("rgb(1, 2, 3 / 0.5)"), nothing);
    EXPECT_EQ(parseColor("hsl(1, 2%, 3% / 0.5)"), nothing);
}

TEST(ParseColor, CountsAPieceOfBlanksBetweenCommas) {
    EXPECT_EQ(parseColor("rgb(1, ,2,3)"), nothing);
    EXPECT_EQ(parseColor("rgb(1,2,3,4, )"), nothing);
}

TEST(ParseColor, TrimsNoNewlinesBetweenCommas) {
    EXPECT_EQ(parseColor("rgb(1,\n2,3)"), nothing);
    EXPECT_EQ(parseColor("rgb(1,\t2,3)"), bytes(1, 2, 3));
}

TEST(ParseColor, NeedsNoPercentSignsInHsl) {
    const SRGBColor expected = hslToSRGB(330.0 / 360.0, 1.0, 0.5, 1.0);
    EXPECT_EQ(rgba255(expected), (RGBA8{255, 0, 128, 255}));
    for (const char* const text : {"hsl(330 100% 50%)", "hsl(330, 100, 50)", "HSL(330 100 50)",
                                   "hsla(330 100% 50%)", "hsl(330% 1%00% %50)"})
        EXPECT_EQ(parseColor(text), expected) << text;
}

TEST(ParseColor, RefusesUnits) {
    EXPECT_EQ(parseColor("hsl(120deg 50% 50%)"), nothing);
    EXPECT_EQ(parseColor("hsl(0.5turn 50% 50%)"), nothing);
}

TEST(ParseColor, ReadsAGreyFromHslWithoutSaturation) {
    EXPECT_EQ(parseColor("hsl(0 0% 50%)"), SRGBColor(0.5, 0.5, 0.5));
}

TEST(ParseColor, ReadsTheAlphaOfHsl) {
    EXPECT_EQ(parseColor("hsla(0 0% 100% / 0.25)"), SRGBColor(1, 1, 1, 0.25));
}

TEST(ParseColor, WrapsAHueOnce) {
    const auto red = RGBA8{255, 0, 0, 255};
    EXPECT_EQ(rgba255(*parseColor("hsl(360 100% 50%)")), red);
    EXPECT_EQ(rgba255(*parseColor("hsl(600 100% 50%)")), rgba255(*parseColor("hsl(240 100% 50%)")));
    EXPECT_EQ(rgba255(*parseColor("hsl(-240 100% 50%)")),
              rgba255(*parseColor("hsl(120 100% 50%)")));
}

TEST(ParseColor, GivesBlackForAHueOfTwoTurns) {
    EXPECT_EQ(parseColor("hsl(720 100% 50%)"), bytes(0, 0, 0));
}

TEST(ParseColor, PinsHslThatIsOutOfRange) {
    EXPECT_EQ(parseColor("hsl(0 200% 50%)"), SRGBColor(1, 0, 0));
    EXPECT_EQ(parseColor("hsl(0 0% 200%)"), SRGBColor(1, 1, 1));
    EXPECT_EQ(parseColor("hsl(0 0% -200%)"), SRGBColor(0, 0, 0));
    EXPECT_EQ(parseColor("hsl(0 0% inf)"), SRGBColor(1, 1, 1));
}

TEST(ParseColor, GivesNothingForValuesThatAreNotNumbers) {
    for (const char* const text : {"rgb(nan 0 0)", "rgb(0 NaN 0)", "rgb(0 0 -nan)",
                                   "rgb(nan(1) 0 0)", "hsl(nan 0 0)", "hsl(0 nan% 0)"})
        EXPECT_EQ(parseColor(text), nothing) << text;
}

TEST(ParseColor, GivesNothingForHslWhoseChannelsAreNotNumbers) {
    EXPECT_EQ(parseColor("hsl(0 inf 0)"), nothing);
    EXPECT_EQ(parseColor("hsl(0 inf 50)"), nothing);
    EXPECT_EQ(parseColor("hsl(0 1e308 1e308)"), nothing);
}

struct ReferenceRow {
    const char* text;
    const char* hex;
};

class PublishedHsl : public testing::TestWithParam<ReferenceRow> {};

void PrintTo(const ReferenceRow& row, std::ostream* stream) {
    *stream << row.text;
}

// The published bytes are rounded, and 127.5 may come out a hair below the half.
TEST_P(PublishedHsl, IsThePublishedColor) {
    constexpr double rounding = 0.5 / 255.0 + 1e-9;
    const auto color = parseColor(GetParam().text);
    const auto expected = parseColor(GetParam().hex);
    ASSERT_TRUE(color && expected);
    EXPECT_NEAR(color->red(), expected->red(), rounding);
    EXPECT_NEAR(color->green(), expected->green(), rounding);
    EXPECT_NEAR(color->blue(), expected->blue(), rounding);
}

// HSL forms of named colours whose HSL is in whole degrees and percent; those of CSS Color 4's
// examples are among them.
INSTANTIATE_TEST_SUITE_P(
    CssColor4, PublishedHsl,
    testing::Values(
        ReferenceRow{"hsl(0 100% 50%)", "red"}, ReferenceRow{"hsl(60 100% 50%)", "yellow"},
        ReferenceRow{"hsl(120 100% 50%)", "lime"}, ReferenceRow{"hsl(180 100% 50%)", "cyan"},
        ReferenceRow{"hsl(240 100% 50%)", "blue"}, ReferenceRow{"hsl(300 100% 50%)", "magenta"},
        ReferenceRow{"hsl(120 100% 25%)", "green"}, ReferenceRow{"hsl(60 100% 25%)", "olive"},
        ReferenceRow{"hsl(240 100% 25%)", "navy"}, ReferenceRow{"hsl(300 100% 25%)", "purple"},
        ReferenceRow{"hsl(180 100% 25%)", "teal"}, ReferenceRow{"hsl(0 100% 25%)", "maroon"},
        ReferenceRow{"hsl(270 50% 40%)", "rebeccapurple"},
        ReferenceRow{"hsl(210 50% 40%)", "#336699"}, ReferenceRow{"hsl(0 0% 100%)", "white"},
        ReferenceRow{"hsl(0 0% 0%)", "black"}, ReferenceRow{"hsl(0 0% 50%)", "grey"},
        ReferenceRow{"hsl(150 50% 60%)", "#66CC99"}, ReferenceRow{"hsl(330 60% 20%)", "#521433"}),
    [](const auto& row) {
        std::string name;
        for (const char character : std::string_view(row.param.hex)) {
            if (character != '#')
                name += character;
        }
        return name;
    });

class NoColor : public testing::TestWithParam<std::string_view> {};

TEST_P(NoColor, GivesNothing) {
    EXPECT_EQ(parseColor(GetParam()), nothing);
}

INSTANTIATE_TEST_SUITE_P(Texts, NoColor,
                         testing::Values(""sv, " "sv, "#"sv, "##FFF"sv, "#F"sv, "#FF"sv, "#FFFFF"sv,
                                         "#FFFFFFF"sv, "#FFFFFFFFF"sv, "#GGG"sv, "#FF 080"sv,
                                         "# FF0080"sv, "0xFF0080"sv, "-FF"sv, "+FFF"sv,
                                         "light blue"sv, "transparent"sv, "currentcolor"sv,
                                         "redd"sv, "#red"sv, "rgb"sv, "hsl"sv, "hsv(1 2 3)"sv,
                                         "cmyk(1 2 3 4)"sv, "color(srgb 1 0 0)"sv));

// Lengths are counted in characters: these have 3, 4, 6 or 8 bytes or characters.
INSTANTIATE_TEST_SUITE_P(MultiByteTexts, NoColor,
                         testing::Values("\u20AC"sv, "#\u20AC"sv, "\u00E9\u00E9"sv, "FF\u00E9"sv,
                                         "FFF\u20AC"sv, "\uFF26\uFF26\uFF26"sv, "FFF\u0301"sv,
                                         "F\u212AF"sv, "\U0001F3A8"sv));

} // namespace
} // namespace dropshade
