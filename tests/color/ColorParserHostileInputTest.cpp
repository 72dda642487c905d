// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "color/ColorParser.h"

#include "support/Seed.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdlib>
#include <new>
#include <random>
#include <string>

namespace {

std::size_t allocationCount = 0;

} // namespace

void* operator new(std::size_t size) {
    ++allocationCount;
    if (void* const memory = std::malloc(size))
        return memory;
    throw std::bad_alloc();
}

void operator delete(void* memory) noexcept {
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}

namespace dropshade {
namespace {

using namespace std::string_literals;
using namespace std::string_view_literals;

constexpr std::size_t tenMegabytes = 10'000'000;

void expectSoundColor(const std::optional<SRGBColor>& color, std::string_view text) {
    if (!color)
        return;
    for (const double component : {color->red(), color->green(), color->blue(), color->alpha()})
        ASSERT_TRUE(component >= 0.0 && component <= 1.0) << component << " from " << text;
}

TEST(ParseColor, AllocatesNothingForAnyUsualForm) {
    for (const std::string_view text :
         {"#FF0080"sv, "F0A"sv, "lightgoldenrodyellow"sv, " Red\n"sv, "rgb(255, 0, 128)"sv,
          "rgb(1.5 0x20 1e-30 / 50%)"sv, "hsl(330 100% 50%)"sv, "hsla(330, 100%, 50%, 0.5)"sv,
          "a long line of text that is no colour at all, not even nearly"sv}) {
        const std::size_t before = allocationCount;
        static_cast<void>(parseColor(text));
        EXPECT_EQ(allocationCount, before) << text;
    }
}

TEST(ParseColor, GivesNothingForTenMegabytesOfOneCharacter) {
    for (const char character :
         {'F', '#', ' ', '\n', '(', ')', ',', '/', '%', '1', '-', '\0', '\x80', '\xE2'})
        EXPECT_EQ(parseColor(std::string(tenMegabytes, character)), std::nullopt) << int{character};
}

TEST(ParseColor, GivesNothingForTenMegabytesInsideTheBrackets) {
    for (const char* const piece : {"(", "1 ", "1,", "%", "\u3000", "9", "0.", "nan "}) {
        std::string text = "rgb(";
        while (text.size() < tenMegabytes)
            text += piece;
        EXPECT_EQ(parseColor(text), std::nullopt) << piece;
        EXPECT_EQ(parseColor(text + ")"), std::nullopt) << piece;
    }
}

TEST(ParseColor, ReadsThroughTenMegabytesOfWhiteSpace) {
    const std::string blanks(tenMegabytes, ' ');
    EXPECT_EQ(parseColor(blanks + "red" + blanks), SRGBColor(1, 0, 0));
    EXPECT_EQ(parseColor("rgb(255" + blanks + "0" + blanks + "0)"), SRGBColor(1, 0, 0));
}

TEST(ParseColor, ReadsANumberOfTenMegabytes) {
    const std::string digits(tenMegabytes, '9');
    EXPECT_EQ(parseColor("rgb(" + digits + " 0 0)"), SRGBColor(1, 0, 0));
    EXPECT_EQ(parseColor("rgb(0." + digits + "e3 0 0)"), SRGBColor(1, 0, 0));
}

TEST(ParseColor, ReadsAPercentageOfTenMegabytesOfSigns) {
    const std::string signs(tenMegabytes, '%');
    EXPECT_EQ(parseColor("hsl(0 0 1" + signs + "00" + signs + ")"), SRGBColor(1, 1, 1));
}

TEST(ParseColor, IsNotCutShortByANulByte) {
    EXPECT_EQ(parseColor("red\0"sv), std::nullopt);
    EXPECT_EQ(parseColor("\0red"sv), std::nullopt);
    EXPECT_EQ(parseColor("#FF0\0"sv), std::nullopt);
    EXPECT_EQ(parseColor("#FF0\00080"sv), std::nullopt);
    EXPECT_EQ(parseColor("rgb(255\0 0 0)"sv), std::nullopt);
    EXPECT_EQ(parseColor("rgb(255\0000\0000)"sv), std::nullopt);
    EXPECT_EQ(parseColor("rgb\0(255 0 0)"sv), std::nullopt);
}

TEST(ParseColor, ReadsOnBehindANulByte) {
    EXPECT_EQ(parseColor("rgb(255 0 0)\0 and more"sv), SRGBColor(1, 0, 0));
    EXPECT_EQ(parseColor("rgb(255 0 0 / 0.5\0)"sv), SRGBColor(1, 0, 0, 1.0));
}

TEST(ParseColor, TakesBytesThatAreNotUtf8ForNoWhiteSpace) {
    for (const std::string_view text :
         {"\x80red"sv, "red\xA0"sv, "red\x85"sv, "\xC2red"sv, "red\xC2"sv, "red\xE2\x80"sv,
          "\xF0\x9F\x8E"sv, "\xFF\xFE"sv, "rgb(255\x85\x30 0 0)"sv, "\xC0\xA0red"sv})
        EXPECT_EQ(parseColor(text), std::nullopt);
}

TEST(ParseColor, GivesOnlySoundColorsForRandomTexts) {
    const std::uint64_t seed = testSeed();
    SCOPED_TRACE(seedTrace(seed));
    std::mt19937_64 random(seed);
    const std::vector<std::string> pieces = {
        "rgb(", "rgba(",    "hsl(", "HSLA(", ")", ",",     " ",      "/",      "%",
        "#",    "nan",      "inf",  "-",     "+", "1e308", "1e-308", "0",      "255",
        "100",  "0x1p1023", ".5",   "F",     "e", "\0"s,   "\xFF",   "\u2003", "red"};
    std::uniform_int_distribution<std::size_t> count(0, 12);
    std::uniform_int_distribution<std::size_t> piece(0, pieces.size() - 1);
    for (int round = 0; round < 200'000; ++round) {
        std::string text = pieces[piece(random) % 4];
        for (std::size_t left = count(random); left > 0; --left)
            text += pieces[piece(random)] + (left % 2 == 0 ? " " : "");
        expectSoundColor(parseColor(text), text);
        expectSoundColor(parseColor(text + ")"), text);
    }
}

TEST(ParseColor, GivesOnlySoundColorsForExtremeHsl) {
    constexpr const char* values[] = {"0",      "1",   "50",   "100",    "1e308",
                                      "-1e308", "inf", "-inf", "1e-308", "5e-324",
                                      "-0",     "720", "-720", "1e155"};
    for (const char* const hue : values) {
        for (const char* const saturation : values) {
            for (const char* const lightness : values) {
                const std::string text =
                    "hsl("s + hue + " " + saturation + " " + lightness + " / " + hue + ")";
                expectSoundColor(parseColor(text), text);
            }
        }
    }
}

} // namespace
} // namespace dropshade
