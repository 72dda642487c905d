// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/ModifierKeys.h"

#include <gtest/gtest.h>

namespace dropshade {
namespace {

TEST(ModifierKeys, CarbonBitsAndCocoaFlagsConvertOneToOneInBothDirections) {
    for (const ModifierKey& key : modifierKeys) {
        EXPECT_EQ(carbonModifiers(key.cocoaFlag), key.carbonBit);
        EXPECT_EQ(cocoaFlags(key.carbonBit), key.cocoaFlag);
    }
    EXPECT_EQ(carbonModifiers(0x140000), 0x1100U);
    EXPECT_EQ(cocoaFlags(std::uint32_t(0x1900)), 0x1C0000U);
}

TEST(ModifierKeys, HaveTheNumbersThatShortcutsAreStoredWith) {
    EXPECT_EQ(commandKey, 0x100U);
    EXPECT_EQ(shiftKey, 0x200U);
    EXPECT_EQ(optionKey, 0x800U);
    EXPECT_EQ(controlKey, 0x1000U);
    EXPECT_EQ(functionKey, 0x20000U);
    EXPECT_EQ(cocoaFlags(commandKey), 0x100000U);
    EXPECT_EQ(cocoaFlags(shiftKey), 0x20000U);
    EXPECT_EQ(cocoaFlags(optionKey), 0x80000U);
    EXPECT_EQ(cocoaFlags(controlKey), 0x40000U);
    EXPECT_EQ(cocoaFlags(functionKey), 0x800000U);
}

TEST(ModifierKeys, EveryOtherBitIsDropped) {
    EXPECT_EQ(carbonModifiers(0xFFFFFFFF), 0x21B00U);
    EXPECT_EQ(cocoaFlags(std::uint32_t(0xFFFFFFFF)), 0x9E0000U);
    EXPECT_EQ(carbonModifiers(0x10000), 0U) << "Caps Lock";
    EXPECT_EQ(carbonModifiers(0x200000), 0U) << "the keypad";
}

TEST(ModifierKeys, CommandIsSuperAndOptionIsAlt) {
    EXPECT_EQ(qtModifiers(commandKey | optionKey), Qt::MetaModifier | Qt::AltModifier);
    EXPECT_EQ(carbonModifiers(cocoaFlags(Qt::ControlModifier | Qt::ShiftModifier)),
              controlKey | shiftKey);
    EXPECT_EQ(cocoaFlags(Qt::KeypadModifier | Qt::GroupSwitchModifier), 0U);
}

} // namespace
} // namespace dropshade
