// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "KeyboardShortcuts/ShortcutDescription.h"

#include "platform/ModifierKeys.h"
#include "support/FakeKeyboardLayout.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

namespace dropshade {
namespace {

class ShortcutDescription : public testing::Test {
protected:
    ShortcutDescription() {
        layout.setCharacter(8, QStringLiteral("c"));
        layout.setCharacter(27, QStringLiteral("ß"));
        layout.setCharacter(41, QStringLiteral("ö"));
    }

    FakeKeyboardLayout layout;
};

TEST_F(ShortcutDescription, ShowsTheModifiersInAFixedOrderAndThenTheCapital) {
    EXPECT_EQ(description({8, 0x21B00}, layout), QStringLiteral("⌃⌥⇧⌘🌐︎C"));
    EXPECT_EQ(description({8, commandKey | controlKey}, layout), QStringLiteral("⌃⌘C"));
    EXPECT_EQ(description({8, 0}, layout), QStringLiteral("C"));
}

TEST_F(ShortcutDescription, ShowsTheSymbolOfASpecialKeyWhateverTheLayoutSays) {
    layout.setCharacter(49, QStringLiteral("x"));
    EXPECT_EQ(description({49, controlKey | optionKey}, layout), QStringLiteral("⌃⌥Space"));
    EXPECT_EQ(description({96, 0}, layout), QStringLiteral("F5"));
}

TEST_F(ShortcutDescription, ShowsTheLettersOfTheUsersLayout) {
    EXPECT_EQ(description({41, controlKey}, layout), QStringLiteral("⌃Ö"));
}

TEST_F(ShortcutDescription, KeepsALetterWhoseCapitalWouldBeTwo) {
    EXPECT_EQ(description({27, controlKey}, layout), QStringLiteral("⌃ß"));
}

TEST_F(ShortcutDescription, ShowsTheReplacementCharacterForAKeyThatMakesNothing) {
    EXPECT_EQ(description({10, controlKey}, layout), QStringLiteral("⌃\uFFFD"));
    EXPECT_EQ(description({4000000000, 0}, layout), QStringLiteral("\uFFFD"));
}

TEST_F(ShortcutDescription, IsReadOutAsQtNamesTheKeys) {
    EXPECT_EQ(keyEquivalent({8, controlKey | optionKey}, layout),
              QKeySequence(Qt::CTRL | Qt::ALT | Qt::Key_C));
    EXPECT_EQ(keyEquivalent({122, commandKey}, layout), QKeySequence(Qt::META | Qt::Key_F1));
    EXPECT_EQ(keyEquivalent({51, shiftKey | controlKey}, layout),
              QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Backspace));
    EXPECT_TRUE(keyEquivalent({10, controlKey}, layout).isEmpty());
}

} // namespace
} // namespace dropshade
