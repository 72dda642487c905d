// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "KeyboardShortcuts/KeyboardShortcuts.h"

#include "platform/ModifierKeys.h"
#include "support/FakeHotKeyRegistrar.h"
#include "support/FakeKeyboardLayout.h"
#include "support/MemoryDefaults.h"
#include "support/QtPrinters.h"

#include <QCoreApplication>

#include <gmock/gmock.h>

namespace dropshade {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

const ShortcutName pick{QStringLiteral("pick")};
const ShortcutName convert{QStringLiteral("convert")};
const Shortcut controlC{8, controlKey};
const Shortcut controlP{35, controlKey};
const FakeHotKeyRegistrar::Combination controlCKeys(8, controlKey);
const FakeHotKeyRegistrar::Combination controlPKeys(35, controlKey);

class KeyboardShortcutsTest : public testing::Test {
protected:
    KeyboardShortcutsTest() {
        QObject::connect(&shortcuts, &KeyboardShortcuts::shortcutByNameDidChange, &shortcuts,
                         [this](const ShortcutName& name) { changes.append(name.rawValue); });
    }

    void store(const ShortcutName& name, const Shortcut& shortcut) {
        defaults.setFromAnotherProcess(storageKey(name), shortcut.toJson());
    }
    KeyboardShortcuts::Action note(const char* what) {
        return [this, what] { log.append(QString::fromUtf8(what)); };
    }

    MemoryDefaults defaults;
    FakeHotKeyRegistrar keys;
    FakeKeyboardLayout layout;
    KeyboardShortcuts shortcuts{defaults, keys, layout};
    QStringList changes;
    QStringList log;
};

TEST_F(KeyboardShortcutsTest, RegistersNothingOnAFreshInstall) {
    shortcuts.onKeyUp(pick, note("up"));
    EXPECT_EQ(keys.lastId(), 0U);
    EXPECT_EQ(shortcuts.getShortcut(pick), std::nullopt);
}

TEST_F(KeyboardShortcutsTest, StoresJsonUnderThePrefixedNameAndTellsAfterwards) {
    std::optional<Shortcut> seen;
    QObject::connect(&shortcuts, &KeyboardShortcuts::shortcutByNameDidChange, &shortcuts,
                     [&](const ShortcutName& name) { seen = shortcuts.getShortcut(name); });
    shortcuts.setShortcut(controlC, pick);
    EXPECT_EQ(defaults.read<QString>(QStringLiteral("KeyboardShortcuts_pick")),
              QStringLiteral(R"({"carbonKeyCode":8,"carbonModifiers":4096})"));
    EXPECT_EQ(seen, controlC);
    EXPECT_EQ(changes, QStringList{QStringLiteral("pick")});
    EXPECT_THAT(keys.combinations(), ElementsAre(Pair(1, controlCKeys)));
}

TEST_F(KeyboardShortcutsTest, RemovingTheShortcutOfANameWithoutADefaultLeavesNothingInTheStore) {
    shortcuts.setShortcut(controlC, pick);
    shortcuts.setShortcut(std::nullopt, pick);
    EXPECT_THAT(defaults.keys(), IsEmpty());
    EXPECT_THAT(keys.combinations(), IsEmpty());
    EXPECT_EQ(changes.size(), 2);
}

TEST_F(KeyboardShortcutsTest, RemovingWhereThereIsNothingTellsNobody) {
    shortcuts.setShortcut(std::nullopt, pick);
    EXPECT_TRUE(changes.isEmpty());
    EXPECT_EQ(defaults.writeCount(), 0);
}

TEST_F(KeyboardShortcutsTest, ADefaultIsStoredOnceAndItsRemovalIsRemembered) {
    const ShortcutName name{QStringLiteral("fresh"), controlP};
    shortcuts.declare(name);
    EXPECT_EQ(shortcuts.getShortcut(name), controlP);
    shortcuts.setShortcut(std::nullopt, name);
    EXPECT_EQ(defaults.read<bool>(storageKey(name)), false);
    shortcuts.declare(name);
    EXPECT_EQ(shortcuts.getShortcut(name), std::nullopt);
}

TEST_F(KeyboardShortcutsTest, WhatIsNoShortcutReadsAsNone) {
    for (const DefaultsValue& junk :
         {DefaultsValue(QStringLiteral("{")), DefaultsValue(true), DefaultsValue(qint64(8)),
          DefaultsValue(QByteArray(R"({"carbonKeyCode":8,"carbonModifiers":4096})"))}) {
        defaults.setFromAnotherProcess(storageKey(pick), junk);
        EXPECT_EQ(shortcuts.getShortcut(pick), std::nullopt);
    }
}

TEST_F(KeyboardShortcutsTest, FiresOnReleaseOnlyForActionsOfTheRelease) {
    store(pick, controlC);
    shortcuts.onKeyUp(pick, note("up"));
    keys.press(controlCKeys);
    keys.press(controlCKeys);
    EXPECT_TRUE(log.isEmpty());
    keys.release(8);
    EXPECT_EQ(log, QStringList{QStringLiteral("up")});
}

TEST_F(KeyboardShortcutsTest, RunsAllActionsOfANameInTheOrderInWhichTheyWereAdded) {
    store(pick, controlC);
    shortcuts.onKeyDown(pick, note("first"));
    shortcuts.onKeyDown(pick, note("second"));
    shortcuts.onKeyUp(pick, note("up"));
    keys.pressAndRelease(controlCKeys);
    EXPECT_EQ(log, (QStringList{QStringLiteral("first"), QStringLiteral("second"),
                                QStringLiteral("up")}));
}

TEST_F(KeyboardShortcutsTest, TwoNamesWithOneShortcutBothFireUntilOneIsRemoved) {
    store(pick, controlC);
    store(convert, controlC);
    shortcuts.onKeyUp(pick, note("pick"));
    shortcuts.onKeyUp(convert, note("convert"));
    EXPECT_EQ(keys.combinations().size(), 1U);
    keys.pressAndRelease(controlCKeys);
    EXPECT_THAT(log,
                testing::UnorderedElementsAre(QStringLiteral("pick"), QStringLiteral("convert")));
    log.clear();
    shortcuts.setShortcut(std::nullopt, pick);
    keys.pressAndRelease(controlCKeys);
    EXPECT_TRUE(log.isEmpty()) << "the other name is silent until it is registered again";
    shortcuts.setShortcut(controlC, convert);
    keys.pressAndRelease(controlCKeys);
    EXPECT_EQ(log, QStringList{QStringLiteral("convert")});
}

TEST_F(KeyboardShortcutsTest, AnotherShortcutForANameGivesUpTheFormerOne) {
    shortcuts.onKeyUp(pick, note("pick"));
    shortcuts.setShortcut(controlC, pick);
    shortcuts.setShortcut(controlP, pick);
    EXPECT_THAT(keys.combinations(), ElementsAre(Pair(2, controlPKeys)));
    keys.pressAndRelease(controlPKeys);
    EXPECT_EQ(log.size(), 1);
}

TEST_F(KeyboardShortcutsTest, NothingFiresWhileARecorderRecords) {
    store(pick, controlC);
    shortcuts.onKeyUp(pick, note("up"));
    bool wasPaused = false;
    QObject::connect(&shortcuts, &KeyboardShortcuts::recorderActiveStatusDidChange, &shortcuts,
                     [&](bool) { wasPaused = shortcuts.isPaused(); });
    shortcuts.setRecorderActive(true);
    EXPECT_TRUE(wasPaused);
    keys.pressAndRelease(controlCKeys);
    EXPECT_TRUE(log.isEmpty());
    EXPECT_EQ(keys.combinations().size(), 1U);
    shortcuts.setRecorderActive(false);
    keys.pressAndRelease(controlCKeys);
    EXPECT_EQ(log.size(), 1);
}

TEST_F(KeyboardShortcutsTest, AnotherMachinesShortcutComesIntoForceAtOnce) {
    shortcuts.onKeyUp(pick, note("pick"));
    shortcuts.setShortcut(controlC, pick);
    changes.clear();
    defaults.setValue(storageKey(pick), controlP.toJson());
    EXPECT_THAT(keys.combinations(), ElementsAre(Pair(2, controlPKeys)));
    EXPECT_EQ(changes, QStringList{QStringLiteral("pick")});
    keys.pressAndRelease(controlPKeys);
    EXPECT_EQ(log.size(), 1);
    defaults.remove(storageKey(pick));
    EXPECT_THAT(keys.combinations(), IsEmpty());
}

TEST_F(KeyboardShortcutsTest, AStoredShortcutIsReadAtEachEvent) {
    store(pick, controlC);
    store(convert, controlP);
    shortcuts.onKeyUp(pick, note("pick"));
    shortcuts.onKeyUp(convert, note("convert"));
    store(pick, controlP);
    keys.pressAndRelease(controlCKeys);
    EXPECT_TRUE(log.isEmpty());
    keys.pressAndRelease(controlPKeys);
    EXPECT_EQ(log.size(), 2);
}

TEST_F(KeyboardShortcutsTest, DroppedHandlersGiveTheCombinationBackUnlessAnotherNameNeedsIt) {
    store(pick, controlC);
    store(convert, controlC);
    shortcuts.onKeyUp(pick, note("pick"));
    shortcuts.onKeyDown(convert, note("convert"));
    shortcuts.removeHandler(pick);
    keys.pressAndRelease(controlCKeys);
    EXPECT_EQ(log, QStringList{QStringLiteral("convert")});
    shortcuts.removeHandler(convert);
    EXPECT_THAT(keys.combinations(), IsEmpty());
}

TEST_F(KeyboardShortcutsTest, AStreamKeepsEveryEventUntilItIsTaken) {
    store(pick, controlC);
    auto events = shortcuts.events(pick);
    keys.pressAndRelease(controlCKeys);
    keys.press(controlCKeys);
    EXPECT_EQ(events->take(), KeyEventType::KeyDown);
    EXPECT_EQ(events->take(), KeyEventType::KeyUp);
    EXPECT_EQ(events->take(), KeyEventType::KeyDown);
    EXPECT_EQ(events->take(), std::nullopt);
}

TEST_F(KeyboardShortcutsTest, TheEndOfTheLastStreamGivesTheCombinationBack) {
    store(pick, controlC);
    auto first = shortcuts.events(pick);
    auto second = shortcuts.events(pick);
    first.reset();
    QCoreApplication::processEvents();
    EXPECT_EQ(keys.combinations().size(), 1U);
    second.reset();
    QCoreApplication::processEvents();
    EXPECT_THAT(keys.combinations(), IsEmpty());
}

TEST_F(KeyboardShortcutsTest, AStreamMayEndWhileItsEventIsTold) {
    store(pick, controlC);
    auto events = shortcuts.events(pick);
    QObject::connect(events.get(), &ShortcutEvents::available, &shortcuts,
                     [&events] { events.reset(); });
    keys.pressAndRelease(controlCKeys);
    QCoreApplication::processEvents();
    EXPECT_EQ(events, nullptr);
    EXPECT_THAT(keys.combinations(), IsEmpty());
}

TEST_F(KeyboardShortcutsTest, AnActionMayRemoveItsOwnHandlerAndShortcut) {
    store(pick, controlC);
    shortcuts.onKeyUp(pick, [this] {
        log.append(QStringLiteral("up"));
        shortcuts.removeHandler(pick);
        shortcuts.setShortcut(std::nullopt, pick);
    });
    keys.pressAndRelease(controlCKeys);
    keys.pressAndRelease(controlCKeys);
    EXPECT_EQ(log.size(), 1);
}

TEST_F(KeyboardShortcutsTest, NamesAreEqualByValue) {
    EXPECT_EQ(pick, (ShortcutName{QStringLiteral("pick")}));
    EXPECT_NE(pick, convert);
    EXPECT_NE(pick, (ShortcutName{QStringLiteral("pick"), controlC}));
}

} // namespace
} // namespace dropshade
