// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "KeyboardShortcuts/SpecialKey.h"

#include "support/QtPrinters.h"

#include <gtest/gtest.h>

#include <array>
#include <set>

namespace dropshade {
namespace {

QString symbolOf(std::uint32_t keyCode) {
    const SpecialKeyRow* row = specialKey(keyCode);
    return row ? symbol(*row) : QString();
}

TEST(SpecialKey, HasOneRowForEachOf53Cases) {
    ASSERT_EQ(specialKeys().size(), 53U);
    std::set<std::uint32_t> codes;
    for (std::size_t index = 0; index < specialKeys().size(); ++index) {
        EXPECT_EQ(static_cast<std::size_t>(specialKeys()[index].key), index);
        codes.insert(specialKeys()[index].keyCode);
    }
    EXPECT_EQ(codes.size(), 53U);
}

TEST(SpecialKey, KeepsTheCodesAndSymbolsOfTheKeyboardOfOrigin) {
    EXPECT_EQ(symbolOf(36), QStringLiteral("↩"));
    EXPECT_EQ(symbolOf(51), QStringLiteral("⌫"));
    EXPECT_EQ(symbolOf(117), QStringLiteral("⌦"));
    EXPECT_EQ(symbolOf(119), QStringLiteral("↘"));
    EXPECT_EQ(symbolOf(53), QStringLiteral("⎋"));
    EXPECT_EQ(symbolOf(114), QStringLiteral("?⃝"));
    EXPECT_EQ(symbolOf(115), QStringLiteral("↖"));
    EXPECT_EQ(symbolOf(48), QStringLiteral("⇥"));
    EXPECT_EQ(symbolOf(116), QStringLiteral("⇞"));
    EXPECT_EQ(symbolOf(121), QStringLiteral("⇟"));
    EXPECT_EQ(symbolOf(126), QStringLiteral("↑"));
    EXPECT_EQ(symbolOf(124), QStringLiteral("→"));
    EXPECT_EQ(symbolOf(125), QStringLiteral("↓"));
    EXPECT_EQ(symbolOf(123), QStringLiteral("←"));
}

TEST(SpecialKey, ShowsTheSpaceBarAsACapitalisedWord) {
    EXPECT_EQ(symbolOf(49), QStringLiteral("Space"));
}

TEST(SpecialKey, NumbersTheFunctionKeysTheirWay) {
    constexpr std::array codes{122, 120, 99,  118, 96,  97,  98, 100, 101, 109,
                               103, 111, 105, 107, 113, 106, 64, 79,  80,  90};
    for (std::size_t index = 0; index < codes.size(); ++index)
        EXPECT_EQ(symbolOf(codes[index]), QStringLiteral("F%1").arg(index + 1));
}

TEST(SpecialKey, ShowsTheKeypadsKeysInKeyCaps) {
    constexpr std::array digits{82, 83, 84, 85, 86, 87, 88, 89, 91, 92};
    for (std::size_t digit = 0; digit < digits.size(); ++digit)
        EXPECT_EQ(symbolOf(digits[digit]), QString::number(digit) + QChar(0x20E3));
    EXPECT_EQ(symbolOf(71), QStringLiteral("☒⃣"));
    EXPECT_EQ(symbolOf(65), QStringLiteral(".⃣"));
    EXPECT_EQ(symbolOf(75), QStringLiteral("/⃣"));
    EXPECT_EQ(symbolOf(76), QStringLiteral("↩⃣"));
    EXPECT_EQ(symbolOf(81), QStringLiteral("=⃣"));
    EXPECT_EQ(symbolOf(78), QStringLiteral("-⃣"));
    EXPECT_EQ(symbolOf(67), QStringLiteral("*⃣"));
    EXPECT_EQ(symbolOf(69), QStringLiteral("+⃣"));
}

TEST(SpecialKey, LeavesOtherKeysToTheLayout) {
    EXPECT_EQ(specialKey(0), nullptr);
    EXPECT_EQ(specialKey(8), nullptr);
    EXPECT_EQ(specialKey(127), nullptr);
}

} // namespace
} // namespace dropshade
