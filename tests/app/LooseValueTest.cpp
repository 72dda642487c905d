// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "app/LooseValue.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace dropshade {
namespace {

constexpr qint64 largest = std::numeric_limits<qint64>::max();
constexpr qint64 smallest = std::numeric_limits<qint64>::min();

TEST(LooseBool, IsFalseForAnUnsetKey) {
    EXPECT_FALSE(looseBool(std::nullopt));
}

TEST(LooseBool, IsWhetherANumberIsNotZero) {
    EXPECT_TRUE(looseBool(true));
    EXPECT_FALSE(looseBool(false));
    EXPECT_TRUE(looseBool(qint64(-1)));
    EXPECT_FALSE(looseBool(qint64(0)));
    EXPECT_TRUE(looseBool(0.5));
    EXPECT_FALSE(looseBool(-0.0));
}

TEST(LooseBool, UnderstandsTheWordsOfOtherPrograms) {
    for (const char* yes : {"YES", "yes", "true", "TRUE", "1", " Y", "t", "-7", "012"})
        EXPECT_TRUE(looseBool(QString::fromLatin1(yes))) << yes;
    for (const char* no : {"", "NO", "false", "0", "off", "on", " ", "-", "x1"})
        EXPECT_FALSE(looseBool(QString::fromLatin1(no))) << no;
}

TEST(LooseBool, IsFalseForDataAndLists) {
    EXPECT_FALSE(looseBool(QByteArray("1")));
    EXPECT_FALSE(looseBool(QStringList{QStringLiteral("YES")}));
}

TEST(LooseInteger, IsZeroForWhatIsNoNumber) {
    EXPECT_EQ(looseInteger(std::nullopt), 0);
    EXPECT_EQ(looseInteger(QStringLiteral("five")), 0);
    EXPECT_EQ(looseInteger(QByteArray("5")), 0);
    EXPECT_EQ(looseInteger(QStringList()), 0);
    EXPECT_EQ(looseInteger(std::nan("")), 0);
}

TEST(LooseInteger, CutsFractionsAndReadsTheFrontOfAString) {
    EXPECT_EQ(looseInteger(true), 1);
    EXPECT_EQ(looseInteger(qint64(5)), 5);
    EXPECT_EQ(looseInteger(5.9), 5);
    EXPECT_EQ(looseInteger(-5.9), -5);
    EXPECT_EQ(looseInteger(QStringLiteral(" +12 pt")), 12);
    EXPECT_EQ(looseInteger(QStringLiteral("-3.9")), -3);
}

TEST(LooseInteger, IsPinnedToWhatFits) {
    EXPECT_EQ(looseInteger(1e300), largest);
    EXPECT_EQ(looseInteger(-1e300), smallest);
    EXPECT_EQ(looseInteger(9223372036854775808.0), largest);
    EXPECT_EQ(looseInteger(-9223372036854775808.0), smallest);
    EXPECT_EQ(looseInteger(QStringLiteral("9223372036854775807")), largest);
    EXPECT_EQ(looseInteger(QStringLiteral("9223372036854775808")), largest);
    EXPECT_EQ(looseInteger(QStringLiteral("-9223372036854775808")), smallest);
    EXPECT_EQ(looseInteger(QStringLiteral("-99999999999999999999")), smallest);
}

} // namespace
} // namespace dropshade
