// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "contrast/ContrastDisplay.h"

#include "support/CommaLocales.h"

#include <gtest/gtest.h>

#include <limits>

namespace dropshade {
namespace {

TEST(FormatRatio, AWholeRatioHasNoDecimals) {
    EXPECT_EQ(formatRatio(21.0), "21:1");
    EXPECT_EQ(formatRatio(1.0), "1:1");
}

TEST(FormatRatio, AnyOtherHasTwo) {
    EXPECT_EQ(formatRatio(4.4978), "4.50:1");
    EXPECT_EQ(formatRatio(4.5), "4.50:1");
    EXPECT_EQ(formatRatio(3.5449), "3.54:1");
    EXPECT_EQ(formatRatio(20.9999), "21.00:1");
}

TEST(FormatRatioNumber, HasTwoDecimalsAlsoWhereItIsWhole) {
    EXPECT_EQ(formatRatioNumber(21.0), "21.00");
    EXPECT_EQ(formatRatioNumber(4.4978), "4.50");
}

TEST(FormatRatioNumber, RoundsATieAsTheShownRatioDoes) {
    EXPECT_EQ(formatRatioNumber(4.125) + ":1", formatRatio(4.125));
    EXPECT_EQ(formatRatioNumber(4.125), "4.12");
    EXPECT_EQ(formatRatioNumber(4.375), "4.38");
}

TEST(FormatLc, CutsTheFractionTowardZeroAndKeepsTheSign) {
    EXPECT_EQ(formatLc(106.04), "Lc 106");
    EXPECT_EQ(formatLc(-107.88), "Lc -107");
    EXPECT_EQ(formatLc(74.9), "Lc 74");
    EXPECT_EQ(formatLc(-74.9), "Lc -74");
}

TEST(FormatLc, NeverShowsMinusZero) {
    EXPECT_EQ(formatLc(0.0), "Lc 0");
    EXPECT_EQ(formatLc(-0.0), "Lc 0");
    EXPECT_EQ(formatLc(-0.9), "Lc 0");
    EXPECT_EQ(formatLc(0.9), "Lc 0");
}

TEST(WholeLcMagnitude, HasNoSign) {
    EXPECT_EQ(wholeLcMagnitude(-107.88), 107);
    EXPECT_EQ(wholeLcMagnitude(74.9), 74);
    EXPECT_EQ(wholeLcMagnitude(-0.5), 0);
}

TEST(FormatThreshold, IsWholeOrHasOneDecimal) {
    EXPECT_EQ(formatThreshold(3.0), "3");
    EXPECT_EQ(formatThreshold(7.0), "7");
    EXPECT_EQ(formatThreshold(4.5), "4.5");
}

TEST(ContrastTexts, TakeAnyDouble) {
    EXPECT_EQ(formatRatio(std::numeric_limits<double>::max()).size(), 309u + 2u);
    EXPECT_EQ(formatRatio(std::numeric_limits<double>::infinity()), "inf:1");
    EXPECT_EQ(formatLc(-std::numeric_limits<double>::max()).size(), 3u + 1u + 309u);
}

void expectFullStops() {
    EXPECT_EQ(formatRatio(4.5), "4.50:1");
    EXPECT_EQ(formatRatio(1234.5), "1234.50:1");
    EXPECT_EQ(formatRatioNumber(4.5), "4.50");
    EXPECT_EQ(formatLc(-1074.5), "Lc -1074");
    EXPECT_EQ(formatThreshold(4.5), "4.5");
}

TEST(ContrastTexts, KeepTheFullStopWhereTheCLibraryHasAComma) {
    const GermanCLocale german;
    ASSERT_TRUE(german.isSet()) << "no German locale here, and none can be compiled";
    expectFullStops();
}

TEST(ContrastTexts, KeepTheFullStopWhereStreamsHaveAComma) {
    const CommaCppLocale commas;
    expectFullStops();
}

} // namespace
} // namespace dropshade
