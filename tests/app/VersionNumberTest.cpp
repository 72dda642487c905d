// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "app/VersionNumber.h"

#include <gtest/gtest.h>

namespace dropshade {
namespace {

VersionNumber version(const char* text) {
    const auto parsed = VersionNumber::parse(QString::fromLatin1(text));
    EXPECT_TRUE(parsed) << text;
    return parsed.value_or(VersionNumber());
}

TEST(VersionNumber, OrdersEachOfARisingRow) {
    // The pre-releases of 1.0.0 are the example of Semantic Versioning 2.0.0, section 11.
    const char* const rising[] = {
        "0",
        "0.0.1",
        "0.1",
        "0.9.9",
        "1.0.0-alpha",
        "1.0.0-alpha.1",
        "1.0.0-alpha.beta",
        "1.0.0-beta",
        "1.0.0-beta.2",
        "1.0.0-beta.11",
        "1.0.0-rc.1",
        "1.0.0",
        "1.0.1",
        "1.2",
        "1.9",
        "1.10",
        "1.10.0.1",
        "2-beta",
        "2",
        "10",
        "999999999",
    };
    const std::size_t count = std::size(rising);
    for (std::size_t a = 0; a < count; ++a) {
        for (std::size_t b = 0; b < count; ++b) {
            EXPECT_EQ(version(rising[a]) < version(rising[b]), a < b)
                << rising[a] << " " << rising[b];
            EXPECT_EQ(version(rising[a]) == version(rising[b]), a == b);
        }
    }
}

TEST(VersionNumber, TakesMissingNumbersForZero) {
    EXPECT_EQ(version("1.2"), version("1.2.0"));
    EXPECT_EQ(version("1"), version("1.0.0.0"));
    EXPECT_EQ(version("0"), VersionNumber());
    EXPECT_EQ(version("1.2.0-rc.1"), version("1.2-rc.1"));
}

TEST(VersionNumber, TakesZerosInFrontForNothing) {
    EXPECT_EQ(version("01.002"), version("1.2"));
    EXPECT_EQ(version("1-beta.007"), version("1-beta.7"));
}

TEST(VersionNumber, LeavesTheBuildOutOfTheOrder) {
    EXPECT_EQ(version("1.2.3+linux.5"), version("1.2.3+99"));
    EXPECT_EQ(version("1.2.3-rc.1+5"), version("1.2.3-rc.1"));
}

TEST(VersionNumber, ComparesLongNumbersOfPreReleasesByValue) {
    EXPECT_LT(version("1-b.99999999999999999999"), version("1-b.100000000000000000000"));
}

TEST(VersionNumber, KeepsItsText) {
    EXPECT_EQ(version("01.2.0-rc.1+5").text(), QStringLiteral("01.2.0-rc.1+5"));
    EXPECT_EQ(VersionNumber().text(), QStringLiteral("0"));
}

TEST(VersionNumber, IsNothingForOtherText) {
    for (const char* text :
         {"",     " ",     ".",     "1.",     ".1",         "1..2",        "v1.0",
          "1.0 ", " 1.0",  "1.0\n", "1,0",    "-1",         "1-",          "1-a..b",
          "1+",   "1-a_b", "one",   "1.0<b>", "1234567890", "1.1234567890"})
        EXPECT_FALSE(VersionNumber::parse(QString::fromLatin1(text))) << text;
    EXPECT_FALSE(VersionNumber::parse(QStringLiteral("\u0661.\u0662")));
    EXPECT_TRUE(VersionNumber::parse(QStringLiteral("1-") + QString(62, u'a')));
    EXPECT_FALSE(VersionNumber::parse(QStringLiteral("1-") + QString(63, u'a')));
}

} // namespace
} // namespace dropshade
