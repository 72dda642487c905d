// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "color/ColorFormat.h"

#include "support/Seed.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstdio>
#include <ostream>
#include <random>
#include <set>
#include <string>
#include <vector>

namespace dropshade {
namespace {

struct FormatRow {
    ColorFormat format;
    const char* rawValue;
    const char* displayName;
    const char* group;
    /// #FF0080 at an alpha of 0.5, with the default options.
    const char* text;
};

void PrintTo(const FormatRow& row, std::ostream* stream) {
    *stream << row.rawValue;
}

const SRGBColor halfPink(1.0, 0.0, 128.0 / 255.0, 0.5);

const std::array<FormatRow, 21> formatRows = {{
    {ColorFormat::hex, "hex", "HEX", "Web", "#FF0080"},
    {ColorFormat::hexa, "hexa", "HEXA", "Web", "#FF008080"},
    {ColorFormat::cssRGB, "cssRGB", "CSS RGB", "Web", "rgb(255 0 128)"},
    {ColorFormat::cssRGBA, "cssRGBA", "CSS RGBA", "Web", "rgb(255 0 128 / 0.5)"},
    {ColorFormat::cssHSL, "cssHSL", "CSS HSL", "Web", "hsl(330 100% 50%)"},
    {ColorFormat::cssHSLA, "cssHSLA", "CSS HSLA", "Web", "hsl(330 100% 50% / 0.5)"},
    {ColorFormat::nsColorRGB, "nsColorRGB", "NSColor RGB", "NSColor",
     "NSColor(calibratedRed: 1.00, green: 0.00, blue: 0.50, alpha: 0.50)"},
    {ColorFormat::nsColorHSB, "nsColorHSB", "NSColor HSB", "NSColor",
     "NSColor(calibratedHue: 0.92, saturation: 1.00, brightness: 1.00, alpha: 0.50)"},
    {ColorFormat::uiColorRGB, "uiColorRGB", "UIColor RGB", "UIColor",
     "UIColor(red: 1.00, green: 0.00, blue: 0.50, alpha: 0.50)"},
    {ColorFormat::uiColorHSB, "uiColorHSB", "UIColor HSB", "UIColor",
     "UIColor(hue: 0.92, saturation: 1.00, brightness: 1.00, alpha: 0.50)"},
    {ColorFormat::swiftUIColorRGB, "swiftUIColorRGB", "SwiftUI Color RGB", "SwiftUI",
     "Color(red: 1.00, green: 0.00, blue: 0.50, opacity: 0.50)"},
    {ColorFormat::swiftUIColorHSB, "swiftUIColorHSB", "SwiftUI Color HSB", "SwiftUI",
     "Color(hue: 0.92, saturation: 1.00, brightness: 1.00, opacity: 0.50)"},
    {ColorFormat::colorLiteral, "colorLiteral", "Swift Color Literal", "SwiftUI",
     "#colorLiteral(red: 1.00, green: 0.00, blue: 0.50, alpha: 0.50)"},
    {ColorFormat::objcNSColorRGB, "objcNSColorRGB", "Obj-C NSColor RGB", "Objective-C",
     "[NSColor colorWithCalibratedRed:1.00 green:0.00 blue:0.50 alpha:0.50]"},
    {ColorFormat::objcUIColorRGB, "objcUIColorRGB", "Obj-C UIColor RGB", "Objective-C",
     "[UIColor colorWithRed:1.00 green:0.00 blue:0.50 alpha:0.50]"},
    {ColorFormat::dotNetRGB, "dotNetRGB", ".NET RGB", ".NET", "Color.FromArgb(255, 0, 128)"},
    {ColorFormat::dotNetARGB, "dotNetARGB", ".NET ARGB", ".NET",
     "Color.FromArgb(128, 255, 0, 128)"},
    {ColorFormat::javaRGB, "javaRGB", "Java RGB", "Java", "new Color(255, 0, 128)"},
    {ColorFormat::javaRGBA, "javaRGBA", "Java RGBA", "Java", "new Color(255, 0, 128, 128)"},
    {ColorFormat::androidRGB, "androidRGB", "Android RGB", "Android", "Color.rgb(255, 0, 128)"},
    {ColorFormat::androidARGB, "androidARGB", "Android ARGB", "Android",
     "Color.argb(128, 255, 0, 128)"},
}};

bool isKeywordForm(ColorFormat format) {
    return format >= ColorFormat::nsColorRGB && format <= ColorFormat::objcUIColorRGB;
}

class EveryColorFormat : public testing::TestWithParam<FormatRow> {};

TEST_P(EveryColorFormat, WritesItsText) {
    EXPECT_EQ(formatted(halfPink, GetParam().format, {}), GetParam().text);
}

TEST_P(EveryColorFormat, HasItsNames) {
    EXPECT_EQ(rawValue(GetParam().format), GetParam().rawValue);
    EXPECT_EQ(displayName(GetParam().format), GetParam().displayName);
}

TEST_P(EveryColorFormat, IsFoundByItsRawValue) {
    EXPECT_EQ(colorFormatFromRawValue(GetParam().rawValue), GetParam().format);
}

TEST_P(EveryColorFormat, TakesThePrefixAndTheCaseInHexFormsAlone) {
    FormatOptions options;
    options.useHashPrefix = false;
    options.useLowercase = true;
    const std::string text = formatted(SRGBColor(1, 0.5, 0.75, 0.9), GetParam().format, options);
    if (GetParam().format == ColorFormat::hex)
        EXPECT_EQ(text, "ff80bf");
    else if (GetParam().format == ColorFormat::hexa)
        EXPECT_EQ(text, "ff80bfe6");
    else
        EXPECT_EQ(text, formatted(SRGBColor(1, 0.5, 0.75, 0.9), GetParam().format, {}));
}

TEST_P(EveryColorFormat, TakesTheDecimalsInKeywordFormsAlone) {
    FormatOptions options;
    options.decimalPlaces = 4;
    const std::string text = formatted(halfPink, GetParam().format, options);
    EXPECT_EQ(text.find("0.5000") != std::string::npos, isKeywordForm(GetParam().format)) << text;
    EXPECT_EQ(text == GetParam().text, !isKeywordForm(GetParam().format)) << text;
}

TEST_P(EveryColorFormat, DropsTheAlphaIfItHasNone) {
    const std::set<ColorFormat> withoutAlpha = {ColorFormat::hex,     ColorFormat::cssRGB,
                                                ColorFormat::cssHSL,  ColorFormat::dotNetRGB,
                                                ColorFormat::javaRGB, ColorFormat::androidRGB};
    const SRGBColor opaque(halfPink.red(), halfPink.green(), halfPink.blue());
    EXPECT_EQ(formatted(opaque, GetParam().format, {}) == GetParam().text,
              withoutAlpha.contains(GetParam().format));
}

INSTANTIATE_TEST_SUITE_P(Rows, EveryColorFormat, testing::ValuesIn(formatRows),
                         [](const auto& row) { return std::string(row.param.rawValue); });

TEST(ColorFormat, HasTwentyOneCases) {
    EXPECT_EQ(colorFormatCount, formatRows.size());
}

TEST(ColorFormatFromRawValue, IsExact) {
    for (const char* const text : {"", "HEX", "Hex", "cssrgba", "hex ", " hex", "CSS RGB", "he"})
        EXPECT_EQ(colorFormatFromRawValue(text), std::nullopt) << text;
}

TEST(FormatGroups, HoldEveryFormatOnceInOrder) {
    std::vector<ColorFormat> formats;
    for (const ColorFormatGroup& group : formatGroups()) {
        for (const ColorFormat format : group.formats) {
            EXPECT_EQ(group.title, formatRows[formats.size()].group);
            formats.push_back(format);
        }
    }
    ASSERT_EQ(formats.size(), formatRows.size());
    for (std::size_t row = 0; row < formatRows.size(); ++row)
        EXPECT_EQ(formats[row], formatRows[row].format);
}

TEST(FormatGroups, AreEightOfTheseTitlesAndSizes) {
    std::vector<std::pair<std::string_view, std::size_t>> groups;
    for (const ColorFormatGroup& group : formatGroups())
        groups.emplace_back(group.title, group.formats.size());
    EXPECT_EQ(groups, (std::vector<std::pair<std::string_view, std::size_t>>{{"Web", 6},
                                                                             {"NSColor", 2},
                                                                             {"UIColor", 2},
                                                                             {"SwiftUI", 3},
                                                                             {"Objective-C", 2},
                                                                             {".NET", 2},
                                                                             {"Java", 2},
                                                                             {"Android", 2}}));
}

TEST(FormatOptions, AreAHashUpperCaseAndTwoDecimalsByDefault) {
    const FormatOptions options;
    EXPECT_TRUE(options.useHashPrefix);
    EXPECT_FALSE(options.useLowercase);
    EXPECT_EQ(options.decimalPlaces, 2);
}

TEST(Formatted, KeepsTheHashInLowerCase) {
    FormatOptions options;
    options.useLowercase = true;
    EXPECT_EQ(formatted(halfPink, ColorFormat::hex, options), "#ff0080");
}

TEST(Formatted, WritesTwoThreeOrFourDecimals) {
    FormatOptions options;
    options.decimalPlaces = 3;
    EXPECT_EQ(formatted(halfPink, ColorFormat::uiColorRGB, options),
              "UIColor(red: 1.000, green: 0.000, blue: 0.502, alpha: 0.500)");
    options.decimalPlaces = 4;
    EXPECT_EQ(formatted(halfPink, ColorFormat::uiColorRGB, options),
              "UIColor(red: 1.0000, green: 0.0000, blue: 0.5020, alpha: 0.5000)");
}

TEST(Formatted, IsSafeWithAnyNumberOfDecimals) {
    FormatOptions options;
    options.decimalPlaces = -5;
    EXPECT_EQ(formatted(SRGBColor(1, 0, 0.6), ColorFormat::objcUIColorRGB, options),
              "[UIColor colorWithRed:1 green:0 blue:1 alpha:1]");
    options.decimalPlaces = 1'000'000;
    EXPECT_EQ(formatted(SRGBColor(1, 0, 0.5), ColorFormat::objcUIColorRGB, options),
              "[UIColor colorWithRed:1.00000000000000000 green:0.00000000000000000 "
              "blue:0.50000000000000000 alpha:1.00000000000000000]");
}

TEST(Formatted, WritesAnAlphaOfOneOrZeroInCssWithoutDecimals) {
    EXPECT_EQ(formatted(SRGBColor(1, 0, 128 / 255.0, 1), ColorFormat::cssRGBA, {}),
              "rgb(255 0 128 / 1)");
    EXPECT_EQ(formatted(SRGBColor(1, 0, 128 / 255.0, 0), ColorFormat::cssRGBA, {}),
              "rgb(255 0 128 / 0)");
}

TEST(Formatted, DoesNotWrapAHueThatRoundsToTheFullTurn) {
    EXPECT_EQ(formatted(SRGBColor(1, 0, 0.001), ColorFormat::cssHSL, {}), "hsl(360 100% 50%)");
    EXPECT_EQ(formatted(SRGBColor(1, 0, 1e-300), ColorFormat::cssHSL, {}), "hsl(360 100% 50%)");
}

TEST(Formatted, WritesAGreyWithoutHueAndSaturation) {
    EXPECT_EQ(formatted(SRGBColor(0.5, 0.5, 0.5), ColorFormat::cssHSL, {}), "hsl(0 0% 50%)");
}

TEST(Formatted, EndsAnOpaqueHexaInFF) {
    EXPECT_EQ(formatted(SRGBColor(0, 0, 0), ColorFormat::hexa, {}), "#000000FF");
}

TEST(Formatted, PadsHexDigitsToTwo) {
    EXPECT_EQ(formatted(SRGBColor(1 / 255.0, 10 / 255.0, 0, 15 / 255.0), ColorFormat::hexa, {}),
              "#010A000F");
}

TEST(Formatted, RoundsBytesHalfAwayFromZero) {
    EXPECT_EQ(formatted(SRGBColor(0.5, 0.498, 1 / 255.0), ColorFormat::cssRGB, {}),
              "rgb(128 127 1)");
}

TEST(AlphaText, OfExactlyOneAndZero) {
    EXPECT_EQ(alphaText(1.0), "1");
    EXPECT_EQ(alphaText(0.0), "0");
    EXPECT_EQ(alphaText(-0.0), "0");
}

TEST(AlphaText, DropsOneTrailingZeroOnly) {
    EXPECT_EQ(alphaText(0.5), "0.5");
    EXPECT_EQ(alphaText(0.996), "1.0");
    EXPECT_EQ(alphaText(0.004), "0.0");
}

TEST(AlphaText, KeepsTwoDecimals) {
    EXPECT_EQ(alphaText(0.25), "0.25");
    EXPECT_EQ(alphaText(0.05), "0.05");
    EXPECT_EQ(alphaText(128 / 255.0), "0.5");
    EXPECT_EQ(alphaText(0.999), "1.0");
}

TEST(AlphaText, RoundsTiesToEvenLikePrintf) {
    EXPECT_EQ(alphaText(0.125), "0.12");
    EXPECT_EQ(alphaText(0.375), "0.38");
}

TEST(PercentText, OfWholePercentages) {
    EXPECT_EQ(percentText(0.5), "50%");
    EXPECT_EQ(percentText(1.0), "100%");
    EXPECT_EQ(percentText(0.0), "0%");
    EXPECT_EQ(percentText(0.9999), "100%");
    EXPECT_EQ(percentText(0.0004), "0%");
}

TEST(PercentText, WritesOneDecimalAtMost) {
    EXPECT_EQ(percentText(0.1234), "12.3%");
    EXPECT_EQ(percentText(0.001), "0.1%");
    EXPECT_EQ(percentText(0.9994), "99.9%");
}

TEST(PercentText, RoundsHalvesAwayFromZero) {
    EXPECT_EQ(percentText(0.0625), "6.3%");
}

TEST(PercentText, IsSafeOutsideItsRange) {
    EXPECT_EQ(percentText(-0.5), "-50%");
    EXPECT_EQ(percentText(12.0), "1200%");
    EXPECT_EQ(percentText(1e300).size(), 304u);
}

std::string printed(const char* pattern, double value) {
    std::array<char, 64> text;
    const int length = std::snprintf(text.data(), text.size(), pattern, value);
    return std::string(text.data(), static_cast<std::size_t>(length));
}

// Components that are decimal ties, next to one, or as random as they come.
std::vector<double> componentsNearTies(std::mt19937_64& random) {
    std::vector<double> components;
    std::uniform_int_distribution<int> ticks(0, 20'000);
    std::uniform_real_distribution<double> fraction(0.0, 1.0);
    for (int index = 0; index < 20'000; ++index) {
        const double tie = ticks(random) / 20'000.0;
        const double dyadic = ticks(random) / 32'768.0;
        for (const double value :
             {tie, std::nextafter(tie, 0.0), std::nextafter(tie, 1.0), dyadic, fraction(random)})
            components.push_back(std::min(value, 1.0));
    }
    return components;
}

TEST(Formatted, RoundsEveryFractionAsPrintfDoes) {
    const std::uint64_t seed = testSeed();
    SCOPED_TRACE(seedTrace(seed));
    std::mt19937_64 random(seed);
    constexpr std::array<const char*, 5> patterns = {"%.0f", "%.1f", "%.2f", "%.3f", "%.4f"};
    for (const double component : componentsNearTies(random)) {
        for (std::size_t places = 0; places < patterns.size(); ++places) {
            FormatOptions options;
            options.decimalPlaces = static_cast<int>(places);
            const std::string one = printed(patterns[places], 1.0);
            ASSERT_EQ(formatted(SRGBColor(1, component, 1), ColorFormat::objcUIColorRGB, options),
                      "[UIColor colorWithRed:" + one +
                          " green:" + printed(patterns[places], component) + " blue:" + one +
                          " alpha:" + one + "]");
        }
    }
}

TEST(PercentText, RoundsAsItsDefinitionDoes) {
    const std::uint64_t seed = testSeed();
    SCOPED_TRACE(seedTrace(seed));
    std::mt19937_64 random(seed);
    for (const double fraction : componentsNearTies(random)) {
        const double percent = std::round(fraction * 1000.0) / 10.0;
        const char* const pattern = percent == std::round(percent) ? "%.0f" : "%.1f";
        ASSERT_EQ(percentText(fraction), printed(pattern, percent) + "%") << fraction;
    }
}

} // namespace
} // namespace dropshade
