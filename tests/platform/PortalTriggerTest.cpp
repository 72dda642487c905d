// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/linux/PortalTrigger.h"

#include "KeyboardShortcuts/ShortcutDescription.h"
#include "KeyboardShortcuts/SpecialKey.h"
#include "support/FakeKeyboardLayout.h"
#include "support/QtPrinters.h"

#include <xkbcommon/xkbcommon.h>

#include <gtest/gtest.h>

namespace dropshade {
namespace {

QString triggerOf(const char* keys) {
    return portalTrigger(QKeySequence::fromString(QString::fromUtf8(keys)));
}

TEST(PortalTrigger, ModifiersComeFirstAndTheKeyByItsSymbol) {
    EXPECT_EQ(triggerOf("Ctrl+C"), QStringLiteral("CTRL+c"));
    EXPECT_EQ(triggerOf("Meta+Shift+Alt+Ctrl+P"), QStringLiteral("CTRL+ALT+SHIFT+LOGO+p"));
    EXPECT_EQ(triggerOf("F5"), QStringLiteral("F5"));
    EXPECT_EQ(triggerOf("Meta+F20"), QStringLiteral("LOGO+F20"));
    EXPECT_EQ(triggerOf("Ctrl+,"), QStringLiteral("CTRL+comma"));
    EXPECT_EQ(triggerOf("Ctrl++"), QStringLiteral("CTRL+plus"));
    EXPECT_EQ(triggerOf("Ctrl+Space"), QStringLiteral("CTRL+space"));
    EXPECT_EQ(triggerOf("Ctrl+PgUp"), QStringLiteral("CTRL+Prior"));
    EXPECT_EQ(triggerOf("Ctrl+Ö"), QStringLiteral("CTRL+odiaeresis"));
}

TEST(PortalTrigger, AKeyOfTheKeypadIsNotThatOfTheRow) {
    EXPECT_EQ(triggerOf("Ctrl+7"), QStringLiteral("CTRL+7"));
    EXPECT_EQ(triggerOf("Ctrl+Num+7"), QStringLiteral("CTRL+KP_7"));
    EXPECT_EQ(triggerOf("Ctrl+Num++"), QStringLiteral("CTRL+KP_Add"));
}

TEST(PortalTrigger, NoKeyIsNoTrigger) {
    EXPECT_EQ(portalTrigger({}), QString());
    EXPECT_EQ(portalTrigger(QKeySequence(Qt::Key_LaunchMail)), QString());
}

TEST(PortalTrigger, EveryKeyWithANameOfItsOwnHasOneThatXKnows) {
    const FakeKeyboardLayout layout;
    for (const SpecialKeyRow& row : specialKeys()) {
        const QString trigger = portalTrigger(keyEquivalent({row.keyCode, 0}, layout));
        EXPECT_NE(xkb_keysym_from_name(qPrintable(trigger), XKB_KEYSYM_NO_FLAGS),
                  xkb_keysym_t(XKB_KEY_NoSymbol))
            << row.keyCode << ": " << qPrintable(trigger);
    }
}

} // namespace
} // namespace dropshade
