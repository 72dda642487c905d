// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "KeyboardShortcuts/Shortcut.h"

#include "support/QtPrinters.h"

#include <gtest/gtest.h>

namespace dropshade {
namespace {

TEST(Shortcut, IsStoredAsAnObjectWithExactlyTwoKeys) {
    EXPECT_EQ((Shortcut{8, 0x1800}.toJson()),
              QStringLiteral(R"({"carbonKeyCode":8,"carbonModifiers":6144})"));
}

TEST(Shortcut, ReadsBackWhatItWrites) {
    for (const Shortcut& shortcut :
         {Shortcut{0, 0}, Shortcut{8, 0x1800}, Shortcut{0xFFFFFFFF, 0xFFFFFFFF}})
        EXPECT_EQ(Shortcut::fromJson(shortcut.toJson()), shortcut);
}

TEST(Shortcut, ReadsKeysInAnyOrderAndSkipsThoseItDoesNotKnow) {
    EXPECT_EQ(Shortcut::fromJson(QStringLiteral(
                  R"( { "carbonModifiers" : 256, "more": [1, {}], "carbonKeyCode": 4 } )")),
              (Shortcut{4, 256}));
}

class BadShortcut : public testing::TestWithParam<const char*> {};

TEST_P(BadShortcut, ReadsAsNoShortcut) {
    EXPECT_EQ(Shortcut::fromJson(QString::fromUtf8(GetParam())), std::nullopt);
}

INSTANTIATE_TEST_SUITE_P(Texts, BadShortcut,
                         testing::Values("", "null", "false", "{}", "[]", "8",
                                         R"({"carbonKeyCode":8})", R"({"carbonModifiers":256})",
                                         R"({"carbonKeyCode":"8","carbonModifiers":256})",
                                         R"({"carbonKeyCode":null,"carbonModifiers":256})",
                                         R"({"carbonKeyCode":8.5,"carbonModifiers":256})",
                                         R"({"carbonKeyCode":-1,"carbonModifiers":256})",
                                         R"({"carbonKeyCode":4294967296,"carbonModifiers":256})",
                                         R"({"carbonKeyCode":8,"carbonModifiers":1e300})",
                                         R"({"carbonKeyCode":8,"carbonModifiers":256)",
                                         R"({"carbonKeyCode":8,"carbonModifiers":256} more)"));

TEST(Shortcut, OfAnEventKeepsTheModifiersOfTheTableWithoutFunction) {
    constexpr std::uint32_t capsLock = 0x10000;
    constexpr std::uint32_t numericPad = 0x200000;
    constexpr std::uint32_t function = 0x800000;
    constexpr std::uint32_t control = 0x40000;
    EXPECT_EQ(Shortcut::ofEvent(122, control | capsLock | numericPad | function | 0x8000001F),
              (Shortcut{122, 0x1000}));
}

TEST(Shortcut, IsEqualByBothFields) {
    EXPECT_EQ((Shortcut{1, 2}), (Shortcut{1, 2}));
    EXPECT_NE((Shortcut{1, 2}), (Shortcut{1, 3}));
    EXPECT_NE((Shortcut{1, 2}), (Shortcut{2, 2}));
    EXPECT_EQ(qHash(Shortcut{1, 2}), qHash(Shortcut{1, 2}));
}

} // namespace
} // namespace dropshade
