// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "KeyboardShortcuts/MenuKeys.h"

#include "platform/ModifierKeys.h"
#include "support/FakeKeyboardLayout.h"

#include <gtest/gtest.h>

namespace dropshade {
namespace {

constexpr std::uint32_t keyC = 8;

class MenuKeysTest : public testing::Test {
protected:
    MenuKeysTest() {
        m_layout.setCharacter(keyC, QStringLiteral("c"));
        m_layout.setCharacter(27, QStringLiteral("-"));
    }

    [[nodiscard]] bool matches(const MenuKeys& item, const Shortcut& shortcut) const {
        return menuItemOf(shortcut, m_layout, {item}) != nullptr;
    }

    FakeKeyboardLayout m_layout;
};

TEST_F(MenuKeysTest, AnItemIsChosenByItsKeyWithExactlyItsModifiers) {
    const MenuKeys item{QStringLiteral("Copy"), QStringLiteral("c"), controlKey};
    EXPECT_TRUE(matches(item, {keyC, controlKey}));
    EXPECT_FALSE(matches(item, {keyC, commandKey}));
    EXPECT_FALSE(matches(item, {keyC, controlKey | shiftKey}));
    EXPECT_FALSE(matches(item, {9, controlKey}));
}

TEST_F(MenuKeysTest, ACapitalStandsForTheKeyWithShift) {
    const MenuKeys item{QStringLiteral("Copy Special"), QStringLiteral("C"), controlKey};
    EXPECT_TRUE(matches(item, {keyC, controlKey | shiftKey}));
    EXPECT_FALSE(matches(item, {keyC, controlKey}));
}

TEST_F(MenuKeysTest, ASmallLetterNeedsShiftInItsOwnMask) {
    const MenuKeys item{QStringLiteral("Copy"), QStringLiteral("c"), controlKey | shiftKey};
    EXPECT_TRUE(matches(item, {keyC, controlKey | shiftKey}));
}

TEST_F(MenuKeysTest, AKeyWithoutACharacterChoosesNothing) {
    EXPECT_FALSE(matches({QStringLiteral("Nothing"), QString(), controlKey}, {99, controlKey}));
}

TEST_F(MenuKeysTest, TheEditMenuHasCopyAndNoQuitUnderControlAndUnderCommand) {
    m_layout.setCharacter(12, QStringLiteral("q"));
    const auto items = editMenuKeys();
    for (const std::uint32_t modifier : {controlKey, commandKey}) {
        const MenuKeys* copy = menuItemOf({keyC, modifier}, m_layout, items);
        ASSERT_NE(copy, nullptr);
        EXPECT_EQ(copy->title, QStringLiteral("Copy"));
        EXPECT_EQ(menuItemOf({12, modifier}, m_layout, items), nullptr);
    }
}

} // namespace
} // namespace dropshade
