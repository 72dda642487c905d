// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "KeyboardShortcuts/ShortcutRow.h"

#include "platform/ModifierKeys.h"
#include "support/FakeHotKeyRegistrar.h"
#include "support/FakeKeyboardLayout.h"
#include "support/MemoryDefaults.h"
#include "support/QtPrinters.h"

#include <QAction>

#include <gtest/gtest.h>

namespace dropshade {
namespace {

class ShortcutRow : public testing::Test {
protected:
    ShortcutRow() { layout.setCharacter(8, QStringLiteral("c")); }

    const ShortcutName pick{QStringLiteral("pick")};
    const Shortcut controlC{8, controlKey};
    const Shortcut controlF5{96, controlKey};
    MemoryDefaults defaults;
    FakeHotKeyRegistrar keys;
    FakeKeyboardLayout layout;
    KeyboardShortcuts shortcuts{defaults, keys, layout};
    QAction row;
};

TEST_F(ShortcutRow, ShowsNothingWhereNoneIsRecorded) {
    setShortcut(row, shortcuts, pick);
    EXPECT_EQ(keyText(row), QString());
    EXPECT_TRUE(row.shortcut().isEmpty());
}

TEST_F(ShortcutRow, ShowsTheStoredShortcutAndFollowsIt) {
    shortcuts.setShortcut(controlC, pick);
    setShortcut(row, shortcuts, pick);
    EXPECT_EQ(keyText(row), QStringLiteral("⌃C"));
    EXPECT_EQ(row.shortcut(), QKeySequence(Qt::CTRL | Qt::Key_C));
    shortcuts.setShortcut(controlF5, pick);
    EXPECT_EQ(keyText(row), QStringLiteral("⌃F5"));
    shortcuts.setShortcut(std::nullopt, pick);
    EXPECT_EQ(keyText(row), QString());
}

TEST_F(ShortcutRow, FollowsOnlyTheNameOfTheLastCall) {
    const ShortcutName other{QStringLiteral("other")};
    setShortcut(row, shortcuts, pick);
    setShortcut(row, shortcuts, other);
    shortcuts.setShortcut(controlC, pick);
    EXPECT_EQ(keyText(row), QString());
    shortcuts.setShortcut(controlF5, other);
    EXPECT_EQ(keyText(row), QStringLiteral("⌃F5"));
}

TEST_F(ShortcutRow, WithoutANameItIsClearedAndFollowsNothing) {
    shortcuts.setShortcut(controlC, pick);
    setShortcut(row, shortcuts, pick);
    setShortcut(row, shortcuts, std::nullopt);
    EXPECT_EQ(keyText(row), QString());
    EXPECT_TRUE(row.shortcut().isEmpty());
    shortcuts.setShortcut(controlF5, pick);
    EXPECT_EQ(keyText(row), QString());
}

} // namespace
} // namespace dropshade
