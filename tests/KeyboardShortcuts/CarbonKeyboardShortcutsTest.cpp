// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "KeyboardShortcuts/CarbonKeyboardShortcuts.h"

#include "support/FakeHotKeyRegistrar.h"
#include "support/FakeKeyboardLayout.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QWindow>

#include <gmock/gmock.h>

namespace dropshade {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

const Shortcut controlC{8, controlKey};
const Shortcut controlP{35, controlKey};
const FakeHotKeyRegistrar::Combination controlCKeys(8, controlKey);
const FakeHotKeyRegistrar::Combination controlPKeys(35, controlKey);

/// A window that counts the keys that reach it.
class CountingWindow : public QWindow {
public:
    int keyCount = 0;

private:
    void keyPressEvent(QKeyEvent*) override { ++keyCount; }
    void keyReleaseEvent(QKeyEvent*) override { ++keyCount; }
};

class CarbonKeyboardShortcutsTest : public testing::Test {
protected:
    CarbonKeyboardShortcutsTest() { menu.setFlag(Qt::Popup); }

    void hold(const Shortcut& shortcut) {
        carbon.registerShortcut(
            shortcut, [this](const Shortcut& s) { downs.push_back(s); },
            [this](const Shortcut& s) { ups.push_back(s); });
    }

    bool sendKey(QEvent::Type type, quint32 keyCode, Qt::KeyboardModifiers modifiers,
                 bool isRepeat = false) {
        const int before = menu.keyCount;
        QKeyEvent event(type, Qt::Key_unknown, modifiers, keyCode + layout.scanCodeOffset, 0, 0,
                        QString(), isRepeat);
        QCoreApplication::sendEvent(&menu, &event);
        return menu.keyCount == before;
    }
    bool press(quint32 keyCode, Qt::KeyboardModifiers modifiers) {
        return sendKey(QEvent::KeyPress, keyCode, modifiers);
    }
    bool release(quint32 keyCode, Qt::KeyboardModifiers modifiers = {}) {
        return sendKey(QEvent::KeyRelease, keyCode, modifiers);
    }

    FakeHotKeyRegistrar keys;
    FakeKeyboardLayout layout;
    CarbonKeyboardShortcuts carbon{keys, layout};
    CountingWindow menu;
    std::vector<Shortcut> downs;
    std::vector<Shortcut> ups;
};

TEST_F(CarbonKeyboardShortcutsTest, NumbersRegistrationsUpwardsAndNeverAgain) {
    hold(controlC);
    carbon.unregister(controlC);
    hold(controlP);
    hold(controlC);
    EXPECT_THAT(keys.combinations(), ElementsAre(Pair(2, controlPKeys), Pair(3, controlCKeys)));
}

TEST_F(CarbonKeyboardShortcutsTest, ReportsPressAndRelease) {
    hold(controlC);
    keys.press(controlCKeys);
    EXPECT_THAT(downs, ElementsAre(controlC));
    EXPECT_THAT(ups, IsEmpty());
    keys.release(8);
    EXPECT_THAT(ups, ElementsAre(controlC));
}

TEST_F(CarbonKeyboardShortcutsTest, ATakenCombinationIsLeftOutWithALineOnTheStandardOutput) {
    keys.take(controlCKeys);
    testing::internal::CaptureStdout();
    hold(controlC);
    const std::string output = testing::internal::GetCapturedStdout();
    EXPECT_TRUE(output.starts_with("Error registering hotkey \u2303\uFFFD:")) << output;
    EXPECT_TRUE(output.ends_with("\n"));
    EXPECT_FALSE(carbon.shortcuts().contains(controlC));
    keys.giveBack(controlCKeys);
    hold(controlC);
    EXPECT_TRUE(carbon.shortcuts().contains(controlC));
}

TEST_F(CarbonKeyboardShortcutsTest, AllAreActiveAgainWithTheirOldIdsOnceEnabledAnew) {
    hold(controlC);
    hold(controlP);
    const auto before = keys.combinations();
    carbon.setEnabled(false);
    EXPECT_THAT(keys.combinations(), IsEmpty());
    carbon.setEnabled(true);
    EXPECT_EQ(keys.combinations(), before);
    keys.pressAndRelease(controlPKeys);
    EXPECT_THAT(ups, ElementsAre(controlP));
}

TEST_F(CarbonKeyboardShortcutsTest, OneThatAnotherProgramTookMeanwhileIsDroppedWithALine) {
    hold(controlC);
    carbon.setEnabled(false);
    keys.take(controlCKeys);
    testing::internal::CaptureStdout();
    carbon.setEnabled(true);
    EXPECT_NE(testing::internal::GetCapturedStdout(), "");
    EXPECT_THAT(carbon.shortcuts(), IsEmpty());
}

TEST_F(CarbonKeyboardShortcutsTest, WhileAMenuIsOpenTheMenusOwnKeysFireOncePerPress) {
    hold(controlC);
    menu.show();
    EXPECT_THAT(keys.combinations(), IsEmpty());
    EXPECT_TRUE(press(8, Qt::ControlModifier));
    EXPECT_TRUE(sendKey(QEvent::KeyRelease, 8, Qt::ControlModifier, true));
    EXPECT_TRUE(sendKey(QEvent::KeyPress, 8, Qt::ControlModifier, true));
    EXPECT_THAT(downs, ElementsAre(controlC));
    EXPECT_THAT(ups, IsEmpty());
    EXPECT_TRUE(release(8)) << "Control went up before the key";
    EXPECT_THAT(ups, ElementsAre(controlC));
    menu.hide();
    EXPECT_THAT(keys.combinations(), ElementsAre(Pair(1, controlCKeys)));
}

TEST_F(CarbonKeyboardShortcutsTest, OtherKeysReachTheMenu) {
    hold(controlC);
    menu.show();
    EXPECT_FALSE(press(8, {}));
    EXPECT_FALSE(release(8));
    EXPECT_FALSE(press(8, Qt::ControlModifier | Qt::ShiftModifier));
    EXPECT_FALSE(press(9, Qt::ControlModifier));
    EXPECT_TRUE(press(8, Qt::ControlModifier | Qt::KeypadModifier)) << "no modifier of shortcuts";
    EXPECT_EQ(downs.size(), 1U);
}

TEST_F(CarbonKeyboardShortcutsTest, AReleaseWithoutItsPressFiresNothing) {
    hold(controlC);
    menu.show();
    EXPECT_FALSE(release(8, Qt::ControlModifier));
    EXPECT_THAT(ups, IsEmpty());
}

TEST_F(CarbonKeyboardShortcutsTest, WhenAllMenusHaveClosedTheWindowsKeysAreTheirOwn) {
    hold(controlC);
    QWindow submenu;
    submenu.setFlag(Qt::Popup);
    menu.show();
    submenu.show();
    submenu.hide();
    EXPECT_TRUE(press(8, Qt::ControlModifier)) << "one menu is still open";
    EXPECT_TRUE(release(8));
    menu.hide();
    EXPECT_FALSE(press(8, Qt::ControlModifier));
}

TEST_F(CarbonKeyboardShortcutsTest, AMenuThatIsDestroyedWhileOpenCountsAsClosed) {
    hold(controlC);
    {
        QWindow gone;
        gone.setFlag(Qt::Popup);
        gone.show();
        EXPECT_THAT(keys.combinations(), IsEmpty());
    }
    EXPECT_EQ(keys.combinations().size(), 1U);
}

TEST_F(CarbonKeyboardShortcutsTest, AShortcutOfAnOpenMenuWorksFromItsRegistrationOn) {
    menu.show();
    hold(controlC);
    EXPECT_THAT(keys.combinations(), IsEmpty());
    EXPECT_TRUE(press(8, Qt::ControlModifier));
    EXPECT_EQ(downs.size(), 1U);
}

TEST_F(CarbonKeyboardShortcutsTest, DisabledNothingFiresInAMenuEither) {
    hold(controlC);
    carbon.setEnabled(false);
    menu.show();
    EXPECT_FALSE(press(8, Qt::ControlModifier));
    carbon.setEnabled(true);
    EXPECT_TRUE(press(8, Qt::ControlModifier));
    EXPECT_THAT(keys.combinations(), IsEmpty());
}

TEST_F(CarbonKeyboardShortcutsTest, WhatIsNotOursIsNoShortcut) {
    hold(controlC);
    EXPECT_FALSE(carbon.handleRawKeyEvent(KeyEventType::KeyDown, controlP));
    EXPECT_TRUE(
        carbon.handleRawKeyEvent(KeyEventType::KeyDown, {8, controlKey | 0x400 /* Caps Lock */}));
    Q_EMIT keys.pressed(99);
    EXPECT_EQ(downs.size(), 1U);
}

} // namespace
} // namespace dropshade
