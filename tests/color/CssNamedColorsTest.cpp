// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "color/CssNamedColors.h"

#include "color/ColorParser.h"

#include <QColor>
#include <QLatin1String>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <map>
#include <string>

namespace dropshade {
namespace {

TEST(CssNamedColors, Are148) {
    EXPECT_EQ(cssNamedColors().size(), 148u);
}

TEST(CssNamedColors, AreTheListOfCssColor4) {
    // FNV-1a, 64 bits, over "name #RRGGBB" and a line end for each row of the published table.
    std::uint64_t hash = 14695981039346656037u;
    for (const CssNamedColor& color : cssNamedColors()) {
        const std::string line = std::string(color.name) + " #" + std::string(color.hex) + "\n";
        for (const char character : line)
            hash = (hash ^ static_cast<unsigned char>(character)) * 1099511628211u;
    }
    EXPECT_EQ(hash, 0xff8b5a50e9f3d2d6u);
}

TEST(CssNamedColors, AreThoseOfSvgAndRebeccapurple) {
    for (const CssNamedColor& color : cssNamedColors()) {
        if (color.name == "rebeccapurple")
            continue;
        const QLatin1String name(color.name.data(), static_cast<qsizetype>(color.name.size()));
        EXPECT_EQ(QColor::fromString(name).name().toUpper().toStdString(),
                  "#" + std::string(color.hex))
            << color.name;
    }
}

TEST(CssNamedColors, StandInTheOrderOfTheirNamesEachOnce) {
    EXPECT_TRUE(std::ranges::is_sorted(cssNamedColors(), {}, &CssNamedColor::name));
    EXPECT_EQ(std::ranges::adjacent_find(cssNamedColors(), {}, &CssNamedColor::name),
              cssNamedColors().end());
}

TEST(CssNamedColors, AreLowerCaseLettersAndUpperCaseDigits) {
    for (const CssNamedColor& color : cssNamedColors()) {
        EXPECT_TRUE(std::ranges::all_of(color.name, [](char c) { return c >= 'a' && c <= 'z'; }));
        EXPECT_EQ(color.hex.size(), 6u);
        EXPECT_EQ(color.hex.find_first_not_of("0123456789ABCDEF"), std::string_view::npos);
    }
}

TEST(CssNamedColors, SpellEveryGreyBothWays) {
    std::size_t greys = 0;
    for (const CssNamedColor& color : cssNamedColors()) {
        std::string name(color.name);
        const std::size_t place = name.find("grey");
        if (place == std::string::npos)
            continue;
        EXPECT_EQ(cssNamedColorHex(name.replace(place, 4, "gray")), color.hex);
        ++greys;
    }
    EXPECT_EQ(greys, 7u);
}

TEST(CssNamedColors, HaveTwoNamesForOnlyTheseOtherColors) {
    EXPECT_EQ(cssNamedColorHex("aqua"), cssNamedColorHex("cyan"));
    EXPECT_EQ(cssNamedColorHex("fuchsia"), cssNamedColorHex("magenta"));
    std::map<std::string_view, int> names;
    for (const CssNamedColor& color : cssNamedColors())
        ++names[color.hex];
    EXPECT_EQ(names.size(), 148u - 7u - 2u);
}

TEST(CssNamedColorHex, FindsEveryName) {
    for (const CssNamedColor& color : cssNamedColors())
        EXPECT_EQ(cssNamedColorHex(color.name), color.hex) << color.name;
}

TEST(CssNamedColorHex, FindsNothingElse) {
    for (const char* const name : {"", "transparent", "currentcolor", "canvas", "light blue", "re",
                                   "redd", "RED", "lightgoldenrodyellowish"})
        EXPECT_EQ(cssNamedColorHex(name), std::nullopt) << name;
}

TEST(ParseColor, ReadsEveryNameInAnyCase) {
    for (const CssNamedColor& color : cssNamedColors()) {
        std::string upper(color.name);
        std::ranges::transform(upper, upper.begin(),
                               [](char c) { return static_cast<char>(c - 'a' + 'A'); });
        const auto expected = parseColor(color.hex);
        ASSERT_TRUE(expected);
        EXPECT_EQ(parseColor(color.name), expected) << color.name;
        EXPECT_EQ(parseColor(upper), expected) << upper;
    }
}

} // namespace
} // namespace dropshade
