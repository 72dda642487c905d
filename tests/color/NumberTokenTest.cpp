// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "color/NumberToken.h"

#include "support/RowName.h"
#include "support/Seed.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <random>
#include <string>

namespace dropshade {
namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

// The C library's own answer, in the "C" locale that a test program starts with.
std::optional<double> strtodNumber(const std::string& token) {
    if (token.empty() || std::isspace(static_cast<unsigned char>(token.front())))
        return std::nullopt;
    char* rest = nullptr;
    const double value = std::strtod(token.c_str(), &rest);
    if (rest != token.c_str() + token.size() || std::isnan(value))
        return std::nullopt;
    return value;
}

struct NumberRow {
    const char* name;
    std::string token;
    std::optional<double> value;
};

void PrintTo(const NumberRow& row, std::ostream* stream) {
    *stream << row.token;
}

class NumberToken : public testing::TestWithParam<NumberRow> {};

TEST_P(NumberToken, ReadsAsStrtodReadsIt) {
    const NumberRow& row = GetParam();
    EXPECT_EQ(numberFromToken(row.token), row.value);
    EXPECT_EQ(strtodNumber(row.token), row.value);
}

INSTANTIATE_TEST_SUITE_P(
    Accepted, NumberToken,
    testing::Values(
        NumberRow{"Integer", "255", 255}, NumberRow{"Fraction", "127.5", 127.5},
        NumberRow{"Plus", "+5", 5}, NumberRow{"Minus", "-5", -5},
        NumberRow{"PointFirst", ".5", 0.5}, NumberRow{"PointLast", "5.", 5},
        NumberRow{"SignAndPointFirst", "-.5", -0.5}, NumberRow{"LeadingZeros", "007", 7},
        NumberRow{"Exponent", "1e2", 100}, NumberRow{"CapitalExponent", "1E2", 100},
        NumberRow{"SignedExponents", "5e-1", 0.5}, NumberRow{"PlusInExponent", "5e+1", 50},
        NumberRow{"ShortestOfATenth", "0.1", 0.1},
        NumberRow{"SeventeenDigits", "0.30000000000000004", 0.30000000000000004},
        NumberRow{"AboveTheExactIntegers", "9007199254740993", 9007199254740992.0},
        NumberRow{"HexInteger", "0x1F", 31}, NumberRow{"HexCapitalPrefix", "0X1f", 31},
        NumberRow{"HexFraction", "0x1.8", 1.5}, NumberRow{"HexExponent", "0x1.8p1", 3},
        NumberRow{"HexPointFirst", "0x.8", 0.5}, NumberRow{"HexPointLast", "0x1.", 1},
        NumberRow{"HexMinus", "-0x10", -16}, NumberRow{"HexTooLarge", "0x1p2000", infinity},
        NumberRow{"HexTooSmall", "0x1p-2000", 0.0}, NumberRow{"Infinity", "inf", infinity},
        NumberRow{"InfinityInFull", "Infinity", infinity},
        NumberRow{"InfinityInCapitals", "INF", infinity},
        NumberRow{"MinusInfinity", "-inf", -infinity}, NumberRow{"TooLarge", "1e400", infinity},
        NumberRow{"MinusTooLarge", "-1e400", -infinity},
        NumberRow{"TooLargeWithoutExponent", "1" + std::string(400, '0'), infinity},
        NumberRow{"TooSmall", "1e-400", 0.0},
        NumberRow{"TooSmallWithoutExponent", "0." + std::string(400, '0') + "1", 0.0},
        NumberRow{"HugeExponentOfZero", "0e99999999999999999999", 0.0},
        NumberRow{"HugeExponent", "1e99999999999999999999", infinity},
        NumberRow{"HugeNegativeExponent", "1e-99999999999999999999", 0.0},
        NumberRow{"SmallestDouble", "4.9e-324", 4.9e-324},
        NumberRow{"LongMantissaBroughtBack", "1" + std::string(400, '0') + "e-400", 1.0},
        NumberRow{"LongFractionBroughtBack", "0." + std::string(399, '0') + "1e400", 1.0}),
    rowName);

INSTANTIATE_TEST_SUITE_P(
    Refused, NumberToken,
    testing::Values(
        NumberRow{"Nothing", "", {}}, NumberRow{"Word", "abc", {}}, NumberRow{"Unit", "120deg", {}},
        NumberRow{"PercentSign", "50%", {}}, NumberRow{"LeadingSpace", " 5", {}},
        NumberRow{"LeadingNewline", "\n5", {}}, NumberRow{"TrailingSpace", "5 ", {}},
        NumberRow{"TwoNumbers", "3   0.5", {}}, NumberRow{"LoneSign", "-", {}},
        NumberRow{"LonePlus", "+", {}}, NumberRow{"LonePoint", ".", {}},
        NumberRow{"TwoPoints", "1.2.3", {}}, NumberRow{"DoubleMinus", "--5", {}},
        NumberRow{"DoublePlus", "++5", {}}, NumberRow{"PlusMinus", "+-5", {}},
        NumberRow{"MinusPlus", "-+5", {}}, NumberRow{"DecimalComma", "0,5", {}},
        NumberRow{"EmptyExponent", "1e", {}}, NumberRow{"EmptySignedExponent", "1e+", {}},
        NumberRow{"ExponentAlone", "e5", {}}, NumberRow{"HexPrefixAlone", "0x", {}},
        NumberRow{"HexPointAlone", "0x.", {}}, NumberRow{"HexEmptyExponent", "0x1p", {}},
        NumberRow{"HexSignInside", "0x-1", {}}, NumberRow{"HexInfinity", "0xinf", {}},
        NumberRow{"HexNotANumber", "0xnan", {}},
        NumberRow{"HexExponentWithTwoSigns", "0x1P+-9", {}},
        NumberRow{"ExponentWithTwoSigns", "1e+-9", {}}, NumberRow{"HexTwice", "0x0x1", {}},
        NumberRow{"DigitSeparator", "1'000", {}}, NumberRow{"InfinityCutShort", "infin", {}},
        NumberRow{"SeventeenCharactersOfJunk", "1234567890123456z", {}},
        NumberRow{"ArabicIndicDigits", "\u0661\u0662", {}}),
    rowName);

TEST(NumberFromToken, TakesNoSpellingOfNotANumber) {
    for (const char* const token : {"nan", "NaN", "-nan", "+nan", "nan(1)", "nan(quiet)", "nan()"})
        EXPECT_EQ(numberFromToken(token), std::nullopt) << token;
}

TEST(NumberFromToken, IsNotCutShortByANulByte) {
    using namespace std::string_view_literals;
    EXPECT_EQ(numberFromToken("5\0"sv), std::nullopt);
    EXPECT_EQ(numberFromToken("\0005"sv), std::nullopt);
    EXPECT_EQ(numberFromToken("0x1\0"sv), std::nullopt);
    EXPECT_EQ(numberFromToken("\0"sv), std::nullopt);
}

TEST(NumberFromToken, KeepsTheSignOfZero) {
    EXPECT_TRUE(std::signbit(*numberFromToken("-0")));
}

// Random texts over the characters that numbers are made of: most are refused, thousands are not.
TEST(NumberFromToken, AgreesWithStrtodOnRandomTexts) {
    const std::uint64_t seed = testSeed();
    SCOPED_TRACE(seedTrace(seed));
    std::mt19937_64 random(seed);
    constexpr std::string_view characters = "00112345678999...+-eEpPxXabcdfinF";
    std::uniform_int_distribution<std::size_t> length(1, 9);
    std::uniform_int_distribution<std::size_t> character(0, characters.size() - 1);
    constexpr std::array<const char*, 4> starts = {"", "0x", "-", "1"};
    for (int round = 0; round < 300'000; ++round) {
        std::string token = starts[static_cast<std::size_t>(round) % starts.size()];
        for (std::size_t left = length(random); left > 0; --left)
            token += characters[character(random)];
        ASSERT_EQ(numberFromToken(token), strtodNumber(token)) << token;
    }
}

TEST(NumberFromToken, AgreesWithStrtodOnRandomDecimals) {
    const std::uint64_t seed = testSeed();
    SCOPED_TRACE(seedTrace(seed));
    std::mt19937_64 random(seed);
    std::uniform_int_distribution<std::size_t> digits(0, 12);
    std::uniform_int_distribution<int> digit('0', '9');
    for (int round = 0; round < 200'000; ++round) {
        std::string token;
        for (std::size_t left = digits(random); left > 0; --left)
            token += static_cast<char>(digit(random));
        token += '.';
        for (std::size_t left = digits(random); left > 0; --left)
            token += static_cast<char>(digit(random));
        ASSERT_EQ(numberFromToken(token), strtodNumber(token)) << token;
    }
}

} // namespace
} // namespace dropshade
