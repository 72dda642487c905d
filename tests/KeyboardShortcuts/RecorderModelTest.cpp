// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "KeyboardShortcuts/RecorderModel.h"

#include "KeyboardShortcuts/SpecialKey.h"
#include "platform/ModifierKeys.h"
#include "support/FakeAlerts.h"
#include "support/FakeHotKeyRegistrar.h"
#include "support/FakeKeyboardLayout.h"
#include "support/MemoryDefaults.h"
#include "support/QtPrinters.h"
#include "support/SignalCount.h"

#include <gtest/gtest.h>

namespace dropshade {
namespace {

using Answer = RecorderModel::Answer;

constexpr std::uint32_t keyC = 8;
constexpr std::uint32_t keyP = 35;
constexpr std::uint32_t keyQ = 12;
constexpr std::uint32_t keyTab = 48;
constexpr std::uint32_t keyEscape = 53;
constexpr std::uint32_t keyDelete = 51;
constexpr std::uint32_t keyForwardDelete = 117;
constexpr std::uint32_t keyF5 = 96;
constexpr std::uint32_t keyF12 = 111;

class RecorderModelTest : public testing::Test {
protected:
    RecorderModelTest() {
        layout.setCharacter(keyC, QStringLiteral("c"));
        layout.setCharacter(keyP, QStringLiteral("p"));
        layout.setCharacter(keyQ, QStringLiteral("q"));
        QObject::connect(&recorder, &RecorderModel::onChange, &recorder,
                         [this](const auto& shortcut) { userChanges.append(shortcut); });
        QObject::connect(&shortcuts, &KeyboardShortcuts::recorderActiveStatusDidChange, &shortcuts,
                         [this](bool isActive) {
                             EXPECT_EQ(shortcuts.isPaused(), isActive) << "told after the switch";
                             activity.append(isActive);
                         });
        recorder.windowDidBecomeKey();
    }

    Answer press(std::uint32_t keyCode, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        EXPECT_TRUE(recorder.isRecording());
        return recorder.keyDown({keyCode, modifiers});
    }
    [[nodiscard]] std::optional<Shortcut> stored() const {
        return shortcuts.getShortcut(shortcutNames::pickColor);
    }

    QList<std::optional<Shortcut>> userChanges;
    QList<bool> activity;
    MemoryDefaults defaults;
    FakeHotKeyRegistrar keyboard;
    FakeKeyboardLayout layout;
    KeyboardShortcuts shortcuts{defaults, keyboard, layout};
    FakeAlerts alerts;
    int beeps = 0;
    std::function<void()> beep = [this] { ++beeps; };
    RecorderModel recorder{{shortcuts, alerts, editMenuKeys, beep}, shortcutNames::pickColor};
};

TEST_F(RecorderModelTest, ShowsAnInvitationAtRestAndAnotherWhileItListens) {
    EXPECT_EQ(recorder.placeholder(), QStringLiteral("Record Shortcut"));
    EXPECT_EQ(recorder.text(), QString());
    EXPECT_FALSE(recorder.hasShortcut());
    EXPECT_TRUE(recorder.beginRecording());
    EXPECT_EQ(recorder.placeholder(), QStringLiteral("Press Shortcut"));
    recorder.endRecording();
    EXPECT_EQ(recorder.placeholder(), QStringLiteral("Record Shortcut"));
}

TEST_F(RecorderModelTest, DoesNotListenBeforeItsWindowHadTheKeyboard) {
    RecorderModel early({shortcuts, alerts, editMenuKeys, {}}, shortcutNames::palettes);
    EXPECT_FALSE(early.beginRecording());
    early.windowDidBecomeKey();
    EXPECT_TRUE(early.beginRecording());
}

TEST_F(RecorderModelTest, PausesTheShortcutsFromItsBeginningToItsEndOnly) {
    recorder.beginRecording();
    recorder.beginRecording();
    recorder.windowDidResignKey();
    recorder.windowDidResignKey();
    EXPECT_EQ(activity, (QList<bool>{true, false}));
    EXPECT_TRUE(shortcuts.isEnabled());
}

TEST_F(RecorderModelTest, ARecorderThatGoesAwayPausesNothingAnyMore) {
    {
        RecorderModel other({shortcuts, alerts, editMenuKeys, {}}, shortcutNames::palettes);
        other.windowDidBecomeKey();
        other.beginRecording();
    }
    EXPECT_FALSE(shortcuts.isPaused());
}

TEST_F(RecorderModelTest, StoresAValidCombinationTellsItAndEnds) {
    recorder.beginRecording();
    EXPECT_EQ(press(keyP, Qt::ControlModifier | Qt::AltModifier), Answer::Swallow);
    const Shortcut expected{keyP, controlKey | optionKey};
    EXPECT_EQ(stored(), expected);
    EXPECT_EQ(userChanges, QList<std::optional<Shortcut>>{expected});
    EXPECT_FALSE(recorder.isRecording());
    EXPECT_EQ(recorder.text(), QStringLiteral("⌃⌥P"));
    EXPECT_EQ(recorder.spokenText(), QStringLiteral("Ctrl+Alt+P"));
    EXPECT_EQ(beeps, 0);
}

TEST_F(RecorderModelTest, LockKeysAndTheKeypadMakeNoDifference) {
    recorder.beginRecording();
    press(82, Qt::ControlModifier | Qt::KeypadModifier);
    EXPECT_EQ(stored(), (Shortcut{82, controlKey}));
    recorder.beginRecording();
    EXPECT_EQ(press(keyTab, Qt::KeypadModifier), Answer::PassOn);
}

TEST_F(RecorderModelTest, TabWithoutModifiersMovesOnAndRecordsNothing) {
    recorder.beginRecording();
    EXPECT_EQ(press(keyTab), Answer::PassOn);
    EXPECT_FALSE(recorder.isRecording());
    EXPECT_EQ(stored(), std::nullopt);
    EXPECT_TRUE(userChanges.isEmpty());
}

TEST_F(RecorderModelTest, EscapeWithoutModifiersEndsAndGoesNoFurther) {
    recorder.beginRecording();
    EXPECT_EQ(press(keyEscape), Answer::Swallow);
    EXPECT_FALSE(recorder.isRecording());
    EXPECT_EQ(stored(), std::nullopt);
}

TEST_F(RecorderModelTest, TabAndEscapeWithModifiersAreCombinationsLikeOthers) {
    recorder.beginRecording();
    press(keyTab, Qt::ControlModifier);
    EXPECT_EQ(stored(), (Shortcut{keyTab, controlKey}));
    recorder.beginRecording();
    press(keyEscape, Qt::AltModifier);
    EXPECT_EQ(stored(), (Shortcut{keyEscape, optionKey}));
}

TEST_F(RecorderModelTest, EitherDeleteKeyClearsTheShortcut) {
    for (const std::uint32_t key : {keyDelete, keyForwardDelete}) {
        shortcuts.setShortcut(Shortcut{keyP, controlKey}, shortcutNames::pickColor);
        userChanges.clear();
        recorder.beginRecording();
        EXPECT_EQ(press(key), Answer::Swallow);
        EXPECT_FALSE(recorder.isRecording());
        EXPECT_EQ(stored(), std::nullopt);
        EXPECT_EQ(userChanges, QList<std::optional<Shortcut>>{std::nullopt});
    }
}

TEST_F(RecorderModelTest, TheCancelButtonClearsTheShortcut) {
    shortcuts.setShortcut(Shortcut{keyP, controlKey}, shortcutNames::pickColor);
    recorder.beginRecording();
    recorder.clear();
    EXPECT_FALSE(recorder.isRecording());
    EXPECT_FALSE(defaults.contains(storageKey(shortcutNames::pickColor)));
}

TEST_F(RecorderModelTest, APlainLetterBeepsAndSoDoesShiftWithALetter) {
    recorder.beginRecording();
    EXPECT_EQ(press(keyP), Answer::Swallow);
    EXPECT_EQ(press(keyP, Qt::ShiftModifier), Answer::Swallow);
    EXPECT_EQ(press(keyTab, Qt::ShiftModifier), Answer::Swallow);
    EXPECT_EQ(beeps, 3);
    EXPECT_TRUE(recorder.isRecording());
    EXPECT_EQ(stored(), std::nullopt);
}

TEST_F(RecorderModelTest, ABareFunctionKeyIsAcceptedAlsoWithShift) {
    recorder.beginRecording();
    press(keyF5);
    EXPECT_EQ(stored(), (Shortcut{keyF5, 0}));
    recorder.beginRecording();
    press(keyF5, Qt::ShiftModifier);
    EXPECT_EQ(stored(), (Shortcut{keyF5, shiftKey}));
    EXPECT_EQ(beeps, 0);
}

TEST_F(RecorderModelTest, EveryOneOfControlOptionAndCommandMakesALetterACombination) {
    for (const auto& [qt, carbon] :
         {std::pair{Qt::ControlModifier, controlKey}, std::pair{Qt::AltModifier, optionKey},
          std::pair{Qt::MetaModifier, commandKey}}) {
        recorder.beginRecording();
        press(keyP, qt);
        EXPECT_EQ(stored(), (Shortcut{keyP, carbon}));
    }
}

TEST_F(RecorderModelTest, AModifierByItselfIsWaitedOutInSilence) {
    recorder.beginRecording();
    EXPECT_EQ(recorder.keyDown({std::nullopt, Qt::ControlModifier, true}), Answer::Swallow);
    EXPECT_TRUE(recorder.isRecording());
    EXPECT_EQ(beeps, 0);
}

TEST_F(RecorderModelTest, AKeyThatShortcutsHaveNoNumberForBeeps) {
    recorder.beginRecording();
    EXPECT_EQ(recorder.keyDown({std::nullopt, Qt::ControlModifier}), Answer::Swallow);
    EXPECT_EQ(beeps, 1);
    EXPECT_TRUE(recorder.isRecording());
}

TEST_F(RecorderModelTest, AMouseUpOutsideEnds) {
    recorder.beginRecording();
    recorder.mouseUpOutside();
    EXPECT_FALSE(recorder.isRecording());
}

TEST_F(RecorderModelTest, AKeyOfAMenuItemIsRefusedInWordsAndTheRecorderListensAgain) {
    const SignalCount focus(recorder, &RecorderModel::wantsFocus);
    recorder.beginRecording();
    EXPECT_EQ(press(keyC, Qt::MetaModifier), Answer::Swallow);
    ASSERT_EQ(alerts.shown().size(), 1);
    EXPECT_EQ(alerts.shown().constFirst().title,
              QStringLiteral("That shortcut belongs to the menu item “Copy”."));
    EXPECT_EQ(alerts.shown().constFirst().buttons.size(), 1);
    EXPECT_FALSE(recorder.isRecording()) << "while the alert is up";
    alerts.answer(0);
    EXPECT_TRUE(recorder.isRecording());
    EXPECT_EQ(focus.count(), 1);
    EXPECT_EQ(stored(), std::nullopt);
}

TEST_F(RecorderModelTest, CommandQIsNoMenuItemHereAndControlWithALetterIsAccepted) {
    recorder.beginRecording();
    press(keyQ, Qt::MetaModifier);
    EXPECT_EQ(stored(), (Shortcut{keyQ, commandKey}));
    recorder.beginRecording();
    press(keyQ, Qt::ControlModifier);
    EXPECT_EQ(stored(), (Shortcut{keyQ, controlKey}));
}

TEST_F(RecorderModelTest, WhatTheSystemUsesIsStoredOnlyIfTheUserForcesIt) {
    keyboard.take({keyP, controlKey});
    recorder.beginRecording();
    press(keyP, Qt::ControlModifier);
    ASSERT_EQ(alerts.shown().size(), 1);
    EXPECT_FALSE(alerts.shown().constFirst().text.isEmpty());
    ASSERT_EQ(alerts.shown().constFirst().buttons.size(), 2);
    EXPECT_EQ(alerts.shown().constFirst().buttons.constFirst().role, Alert::Role::Cancel);
    alerts.answer(0);
    EXPECT_TRUE(recorder.isRecording());
    EXPECT_EQ(stored(), std::nullopt);

    press(keyP, Qt::ControlModifier);
    alerts.answer(1);
    EXPECT_FALSE(recorder.isRecording());
    EXPECT_EQ(stored(), (Shortcut{keyP, controlKey}));
    EXPECT_EQ(recorder.text(), QStringLiteral("⌃P"));
}

TEST_F(RecorderModelTest, BareF12IsNotComparedWithWhatTheSystemUses) {
    keyboard.take({keyF12, 0});
    recorder.beginRecording();
    press(keyF12);
    EXPECT_TRUE(alerts.shown().isEmpty());
    EXPECT_EQ(stored(), (Shortcut{keyF12, 0}));
    keyboard.take({keyF12, controlKey});
    recorder.beginRecording();
    press(keyF12, Qt::ControlModifier);
    EXPECT_EQ(alerts.shown().size(), 1);
}

TEST_F(RecorderModelTest, WhatTheDesktopCannotDeliverIsRefused) {
    class Silent : public HotKeyRegistrar {
        Status registerHotKey(quint32, quint32, quint32) override { return Status::Unavailable; }
        void unregisterHotKey(quint32) override {}
    } silent;
    KeyboardShortcuts none(defaults, silent, layout);
    RecorderModel mute({none, alerts, editMenuKeys, {}}, shortcutNames::pickColor);
    mute.windowDidBecomeKey();
    mute.beginRecording();
    mute.keyDown({keyP, Qt::ControlModifier});
    ASSERT_EQ(alerts.shown().size(), 1);
    alerts.answer(0);
    EXPECT_TRUE(mute.isRecording());
    EXPECT_EQ(stored(), std::nullopt);
}

TEST_F(RecorderModelTest, ABoundShortcutIsRecordedAndNeitherItsPressNorItsReleaseFires) {
    int fired = 0;
    shortcuts.setShortcut(Shortcut{keyP, controlKey}, shortcutNames::palettes);
    shortcuts.onKeyDown(shortcutNames::palettes, [&fired] { ++fired; });
    shortcuts.onKeyUp(shortcutNames::palettes, [&fired] { ++fired; });
    shortcuts.onKeyUp(shortcutNames::pickColor, [&fired] { ++fired; });
    recorder.beginRecording();
    keyboard.press({keyP, controlKey});
    EXPECT_EQ(stored(), (Shortcut{keyP, controlKey}));
    keyboard.release(keyP);
    EXPECT_EQ(fired, 0);
    keyboard.pressAndRelease({keyP, controlKey});
    EXPECT_EQ(fired, 3) << "from the next press on, both names fire";
}

TEST_F(RecorderModelTest, RecordingTheOwnShortcutAgainKeepsItAndFiresNothing) {
    int fired = 0;
    shortcuts.onKeyUp(shortcutNames::pickColor, [&fired] { ++fired; });
    shortcuts.setShortcut(Shortcut{keyP, controlKey}, shortcutNames::pickColor);
    recorder.beginRecording();
    keyboard.pressAndRelease({keyP, controlKey});
    EXPECT_EQ(stored(), (Shortcut{keyP, controlKey}));
    EXPECT_EQ(fired, 0);
    EXPECT_TRUE(alerts.shown().isEmpty());
    keyboard.pressAndRelease({keyP, controlKey});
    EXPECT_EQ(fired, 1);
}

TEST_F(RecorderModelTest, FollowsChangesFromElsewhere) {
    const SignalCount changes(recorder, &RecorderModel::didChange);
    shortcuts.setShortcut(Shortcut{keyP, controlKey}, shortcutNames::palettes);
    EXPECT_EQ(changes.count(), 0);
    shortcuts.setShortcut(Shortcut{keyP, optionKey}, shortcutNames::pickColor);
    EXPECT_EQ(changes.count(), 1);
    EXPECT_EQ(recorder.text(), QStringLiteral("⌥P"));
    EXPECT_TRUE(userChanges.isEmpty());
    recorder.setName(shortcutNames::palettes);
    EXPECT_EQ(recorder.text(), QStringLiteral("⌃P"));
}

TEST_F(RecorderModelTest, AnAlertThatOutlivesItsRecorderChangesNothing) {
    {
        RecorderModel brief({shortcuts, alerts, editMenuKeys, {}}, shortcutNames::pickColor);
        brief.windowDidBecomeKey();
        keyboard.take({keyP, controlKey});
        brief.beginRecording();
        brief.keyDown({keyP, Qt::ControlModifier});
    }
    alerts.answer(1);
    EXPECT_EQ(stored(), std::nullopt);
    EXPECT_FALSE(shortcuts.isPaused());
}

} // namespace
} // namespace dropshade
