// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/linux/VirtualKeyCodes.h"

#include "KeyboardShortcuts/SpecialKey.h"

#include <linux/input-event-codes.h>

#include <gtest/gtest.h>

#include <set>

namespace dropshade {
namespace {

TEST(VirtualKeyCodes, MapOneToOne) {
    std::set<std::uint32_t> virtualCodes;
    std::set<std::uint32_t> linuxCodes;
    for (const VirtualKey& row : virtualKeys()) {
        EXPECT_TRUE(virtualCodes.insert(row.virtualCode).second) << row.virtualCode;
        EXPECT_TRUE(linuxCodes.insert(row.linuxCode).second) << row.linuxCode;
        EXPECT_EQ(linuxKeyCode(row.virtualCode), row.linuxCode);
        EXPECT_EQ(virtualKeyCode(row.linuxCode), row.virtualCode);
    }
    EXPECT_EQ(virtualCodes.size(), virtualKeys().size());
}

TEST(VirtualKeyCodes, KnowEveryKeyThatShortcutsNameBySymbol) {
    for (const SpecialKeyRow& row : specialKeys())
        EXPECT_TRUE(linuxKeyCode(row.keyCode)) << row.keyCode;
}

TEST(VirtualKeyCodes, FitTheKeyCodesOfAnXServer) {
    for (const VirtualKey& row : virtualKeys())
        EXPECT_LE(row.linuxCode + xkbKeyCodeOffset, 255U);
}

TEST(VirtualKeyCodes, NameTheSamePlacesOnTheKeyboard) {
    EXPECT_EQ(linuxKeyCode(0), KEY_A);
    EXPECT_EQ(linuxKeyCode(6), KEY_Z);
    EXPECT_EQ(linuxKeyCode(16), KEY_Y);
    EXPECT_EQ(linuxKeyCode(49), KEY_SPACE);
    EXPECT_EQ(linuxKeyCode(36), KEY_ENTER);
    EXPECT_EQ(linuxKeyCode(51), KEY_BACKSPACE);
    EXPECT_EQ(linuxKeyCode(117), KEY_DELETE);
    EXPECT_EQ(linuxKeyCode(122), KEY_F1);
    EXPECT_EQ(linuxKeyCode(123), KEY_LEFT);
    EXPECT_EQ(linuxKeyCode(82), KEY_KP0);
    EXPECT_EQ(linuxKeyCode(92), KEY_KP9);
}

TEST(VirtualKeyCodes, KnowNoModifiersAndNothingBeyondTheTable) {
    for (const std::uint32_t modifier : {54, 55, 56, 57, 58, 59, 60, 61, 62, 63})
        EXPECT_EQ(linuxKeyCode(modifier), std::nullopt);
    EXPECT_EQ(linuxKeyCode(4000000000U), std::nullopt);
    EXPECT_EQ(virtualKeyCode(KEY_LEFTCTRL), std::nullopt);
    EXPECT_EQ(virtualKeyCode(0), std::nullopt);
}

} // namespace
} // namespace dropshade
