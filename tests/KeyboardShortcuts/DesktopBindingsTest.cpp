// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "KeyboardShortcuts/DesktopBindings.h"

#include "platform/ModifierKeys.h"
#include "support/FakeDesktopShortcuts.h"
#include "support/FakeHotKeyRegistrar.h"
#include "support/FakeKeyboardLayout.h"
#include "support/MemoryDefaults.h"
#include "support/QtPrinters.h"

#include <gmock/gmock.h>

namespace dropshade {
namespace {

using State = DesktopShortcuts::State;
using testing::ElementsAre;

const QString pick = shortcutNames::pickColor.rawValue;
const QString convert = shortcutNames::convert.rawValue;

class DesktopBindingsTest : public testing::Test {
protected:
    DesktopBindingsTest() {
        layout.setCharacter(8, QStringLiteral("c"));
        shortcuts.onKeyDown(shortcutNames::pickColor, note("pick down"));
        shortcuts.onKeyUp(shortcutNames::pickColor, note("pick up"));
        shortcuts.onKeyUp(shortcutNames::convert, note("convert up"));
        QObject::connect(&bindings, &DesktopBindings::didChange, &bindings, [this] { ++changes; });
    }

    KeyboardShortcuts::Action note(const char* what) {
        return [this, what] { log.emplace_back(what); };
    }
    /// A program that is started later, on the same machine.
    [[nodiscard]] bool asksAtItsStart() {
        FakeDesktopShortcuts later;
        DesktopBindings next({later, shortcuts, defaults}, shortcutActions());
        next.start();
        return later.state() == State::Asking;
    }

    MemoryDefaults defaults;
    FakeHotKeyRegistrar noKeys;
    FakeKeyboardLayout layout;
    KeyboardShortcuts shortcuts{defaults, noKeys, layout};
    FakeDesktopShortcuts desktop;
    DesktopBindings bindings{{desktop, shortcuts, defaults}, shortcutActions()};
    std::vector<std::string> log;
    int changes = 0;
};

TEST_F(DesktopBindingsTest, AUserWhoNeverWantedKeysIsNotAsked) {
    desktop.offer();
    bindings.start();
    EXPECT_EQ(bindings.state(), State::Unbound);
    EXPECT_FALSE(asksAtItsStart());
}

TEST_F(DesktopBindingsTest, TheDesktopIsAskedForEveryActionInTheOrderOfTheSettings) {
    desktop.offer();
    bindings.change();
    QStringList wanted;
    for (const auto& wish : desktop.wishes())
        wanted.append(wish.id + u' ' + wish.description);
    EXPECT_EQ(wanted, QStringList({QStringLiteral("pickColor Quick Pick"),
                                   QStringLiteral("convert Color Picker"),
                                   QStringLiteral("palettes Palettes"),
                                   QStringLiteral("checkContrast Check Contrast")}));
}

TEST_F(DesktopBindingsTest, WhatWasRecordedElsewhereIsProposed) {
    shortcuts.setShortcut(Shortcut{8, controlKey | optionKey}, shortcutNames::convert);
    bindings.change();
    EXPECT_EQ(desktop.wishes().at(0).preferredKey, QKeySequence());
    EXPECT_EQ(desktop.wishes().at(1).preferredKey, QKeySequence(Qt::CTRL | Qt::ALT | Qt::Key_C));
}

TEST_F(DesktopBindingsTest, KeysOnceGivenAreAskedForAtEachStart) {
    bindings.change();
    EXPECT_FALSE(asksAtItsStart());
    desktop.answer({{pick, QStringLiteral("F9")}});
    EXPECT_TRUE(asksAtItsStart());
}

TEST_F(DesktopBindingsTest, AfterARefusalNoStartAsksAgain) {
    bindings.change();
    desktop.answer({{pick, QStringLiteral("F9")}});
    bindings.start();
    desktop.refuse();
    EXPECT_FALSE(asksAtItsStart());
}

TEST_F(DesktopBindingsTest, ADesktopThatLostItsPortalKeepsItsPlaceInTheSettings) {
    bindings.change();
    desktop.answer({{pick, QStringLiteral("F9")}});
    desktop.vanish();
    EXPECT_EQ(bindings.trigger(shortcutNames::pickColor), QString());
    EXPECT_TRUE(asksAtItsStart());
}

TEST_F(DesktopBindingsTest, TheKeyRunsTheActionsOfItsNameWhateverIsRecorded) {
    shortcuts.setShortcut(Shortcut{8, controlKey}, shortcutNames::convert);
    bindings.change();
    desktop.answer({{pick, QStringLiteral("F9")}, {convert, QStringLiteral("F8")}});
    desktop.press(pick);
    EXPECT_THAT(log, ElementsAre("pick down"));
    desktop.release(pick);
    desktop.press(convert);
    desktop.release(convert);
    EXPECT_THAT(log, ElementsAre("pick down", "pick up", "convert up"));
}

TEST_F(DesktopBindingsTest, WhileShortcutsAreOffTheKeysDoNothing) {
    bindings.change();
    desktop.answer({{pick, QStringLiteral("F9")}});
    shortcuts.setEnabled(false);
    desktop.press(pick);
    desktop.release(pick);
    EXPECT_THAT(log, ElementsAre());
}

TEST_F(DesktopBindingsTest, EachNameShowsTheDesktopsOwnWords) {
    bindings.change();
    desktop.answer({{pick, QStringLiteral("Meta+Shift+C")}});
    EXPECT_EQ(bindings.trigger(shortcutNames::pickColor), QStringLiteral("Meta+Shift+C"));
    EXPECT_EQ(bindings.trigger(shortcutNames::convert), QString());
    const int before = changes;
    desktop.answer({{pick, QStringLiteral("F7")}});
    EXPECT_GT(changes, before);
    EXPECT_EQ(bindings.trigger(shortcutNames::pickColor), QStringLiteral("F7"));
}

TEST_F(DesktopBindingsTest, BoundKeysChangeOnlyWhereTheDesktopShowsItsSettings) {
    EXPECT_FALSE(bindings.canChange());
    desktop.offer();
    EXPECT_TRUE(bindings.canChange());
    bindings.change();
    EXPECT_FALSE(bindings.canChange());
    desktop.answer({{pick, QStringLiteral("F9")}});
    EXPECT_FALSE(bindings.canChange());
    desktop.setCanConfigure(true);
    EXPECT_TRUE(bindings.canChange());
    bindings.change();
    EXPECT_EQ(desktop.configurations(), 1);
    EXPECT_EQ(bindings.state(), State::Bound);
}

} // namespace
} // namespace dropshade
