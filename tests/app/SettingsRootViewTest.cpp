// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "KeyboardShortcuts/RecorderCocoa.h"
#include "KeyboardShortcuts/TriggerField.h"
#include "app/MenuBarIconPicker.h"
#include "app/RecentColor.h"
#include "app/SettingsReaders.h"
#include "support/SettingsFixture.h"
#include "widgets/SegmentedControl.h"

#include <QAccessible>

namespace dropshade {
namespace {

class SettingsRootViewTest : public SettingsFixture {};

TEST_F(SettingsRootViewTest, IsBuiltAtItsFirstShowAndKeptAfterAClose) {
    EXPECT_EQ(delegate.settingsController().window(), nullptr);
    open();
    QWidget* first = &window();
    EXPECT_EQ(first->windowTitle(), QStringLiteral("Dropshade Settings"));
    first->close();
    EXPECT_FALSE(first->isVisible());
    open();
    EXPECT_EQ(&window(), first);
    EXPECT_TRUE(first->isVisible());
}

TEST_F(SettingsRootViewTest, TheRowsStandInTheirSectionsInOrder) {
    const QStringList rows{
        QStringLiteral("General"),
        QStringLiteral("Menu bar icon"),
        QStringLiteral("Recent colors in menu"),
        QStringLiteral("Copy sound"),
        QStringLiteral("Start automatically on login"),
        QStringLiteral("Automatically check for updates"),
        QStringLiteral("Sync via iCloud"),
        QStringLiteral("Keep palettes and preferences in sync across your Macs."),
        QStringLiteral("Format"),
        QStringLiteral("Format"),
        QStringLiteral("Colors will be copied to the clipboard in this format"),
        QStringLiteral("Use lowercase for copied colors"),
        QStringLiteral("Use # prefix for hex codes"),
        QStringLiteral("Hotkeys"),
        QStringLiteral("Quick Pick"),
        QStringLiteral("Color Picker"),
        QStringLiteral("Palettes"),
        QStringLiteral("Check Contrast"),
        QStringLiteral("Activate from anywhere with the press of a button")};
    EXPECT_EQ(wordsFromTop(), rows);
    QStringList ofPrecision = rows;
    ofPrecision.removeAll(QStringLiteral("Use lowercase for copied colors"));
    ofPrecision.replace(ofPrecision.indexOf(QStringLiteral("Use # prefix for hex codes")),
                        QStringLiteral("Decimal precision"));
    choose(find<Picker>("Format"), QStringLiteral("NSColor RGB"));
    EXPECT_EQ(wordsFromTop(), ofPrecision);
}

TEST_F(SettingsRootViewTest, TheChoicesOfARowStandInOrder) {
    QStringList tiles;
    for (const auto* tile :
         window().findChild<MenuBarIconPicker*>()->findChildren<QAbstractButton*>())
        tiles.append(tile->accessibleName());
    EXPECT_EQ(tiles.join(u' '), QStringLiteral("Default Swatch Palette"));
    EXPECT_EQ(
        choices("Copy sound"),
        QStringLiteral("None|-|Coin|Collect|Drop (default)|Ding|Fart|Plink|Pop|Retro|Whoosh"));
    QStringList formats;
    for (const ColorFormatGroup& group : formatGroups()) {
        formats.append(QString::fromUtf8(group.title.data(), qsizetype(group.title.size())));
        for (const ColorFormat format : group.formats) {
            const std::string_view name = displayName(format);
            formats.append(QString::fromUtf8(name.data(), qsizetype(name.size())));
        }
    }
    EXPECT_EQ(choices("Format"), formats.join(u'|'));
    QStringList segments;
    for (const auto* each :
         find<SegmentedControl>("Decimal precision")->findChildren<QAbstractButton*>())
        segments.append(each->text());
    EXPECT_EQ(segments.join(u' '), QStringLiteral("0.00 0.000 0.0000"));
}

TEST_F(SettingsRootViewTest, ATileChangesTheIconOfTheStatusItemAtOnce) {
    delegate.applicationDidFinishLaunching();
    const auto before = fakes.statusItem.icons().size();
    const auto tiles = window().findChild<MenuBarIconPicker*>()->findChildren<QAbstractButton*>();
    ASSERT_EQ(tiles.size(), 3);
    EXPECT_TRUE(tiles.at(0)->isChecked());
    click(tiles.at(2));
    EXPECT_EQ(delegate.settings().menuBarIconStyle(), MenuBarIconStyle::Palette);
    EXPECT_EQ(fakes.statusItem.icons().size(), before + 1);
}

TEST_F(SettingsRootViewTest, TypingNinetyNineShowsFifty) {
    auto* field = find<TextField>("Recent colors in menu");
    EXPECT_EQ(field->text(), QStringLiteral("8"));
    type(field, "99");
    EXPECT_EQ(field->text(), QStringLiteral("50"));
    EXPECT_EQ(fakes.defaults.read<qint64>(keys::recentColorsLimit), 50);
}

TEST_F(SettingsRootViewTest, TypingANumberDigitByDigitCutsNothingOnTheWay) {
    for (int i = 0; i < 8; ++i)
        recordRecentColor(fakes.defaults, SRGBColor(i / 10.0, 0.0, 0.0, 1.0));
    auto* field = find<TextField>("Recent colors in menu");
    type(field, "12");
    EXPECT_EQ(loadRecentColors(fakes.defaults).size(), 8);
    type(field, "many");
    EXPECT_EQ(field->text(), QStringLiteral("12"));
}

TEST_F(SettingsRootViewTest, WhatIsTypedCountsWhenTheWindowIsClosed) {
    auto* field = find<TextField>("Recent colors in menu");
    field->setFocus();
    field->selectAll();
    QTest::keyClicks(field, QStringLiteral("5"));
    window().close();
    EXPECT_EQ(fakes.defaults.read<qint64>(keys::recentColorsLimit), 5);
}

TEST_F(SettingsRootViewTest, VisitingTheNumberWithoutTypingWritesNothing) {
    auto* field = find<TextField>("Recent colors in menu");
    field->setFocus();
    QTest::keyClick(field, Qt::Key_Tab);
    EXPECT_FALSE(fakes.defaults.contains(keys::recentColorsLimit));
}

TEST_F(SettingsRootViewTest, ChoosingTheSameSoundAgainPlaysIt) {
    auto* picker = find<Picker>("Copy sound");
    EXPECT_EQ(picker->currentText(), QStringLiteral("Drop (default)"));
    EXPECT_EQ(picker->count(), 10);
    choose(picker, QStringLiteral("Drop (default)"));
    choose(picker, QStringLiteral("Coin"));
    EXPECT_EQ(fakes.previewPlayer.played(), (QStringList{QStringLiteral(":/sounds/drop.aiff"),
                                                         QStringLiteral(":/sounds/coin.aiff")}));
    EXPECT_EQ(fakes.defaults.read<QString>(keys::copySound), QStringLiteral("coin"));
    choose(picker, QStringLiteral("None"));
    EXPECT_EQ(fakes.previewPlayer.played().size(), 2);
}

TEST_F(SettingsRootViewTest, APreviewNeverTouchesWhatACopyPlays) {
    choose(find<Picker>("Copy sound"), QStringLiteral("Coin"));
    EXPECT_TRUE(fakes.soundPlayer.played().isEmpty());
    fakes.defaults.setFromAnotherProcess(keys::copySound, QStringLiteral("drop"));
    delegate.copyColor(SRGBColor(1.0, 0.0, 0.0, 1.0));
    EXPECT_EQ(fakes.soundPlayer.played(), QStringList{QStringLiteral(":/sounds/drop.aiff")});
}

TEST_F(SettingsRootViewTest, ALoginItemThatTheSystemRefusesLeavesTheToggleOff) {
    fakes.loginItem.setRefuses(true);
    click(toggle("Start automatically on login"));
    EXPECT_FALSE(toggle("Start automatically on login")->isChecked());
    EXPECT_TRUE(fakes.alerts.shown().isEmpty());
    fakes.loginItem.setRefuses(false);
    click(toggle("Start automatically on login"));
    EXPECT_TRUE(toggle("Start automatically on login")->isChecked());
    EXPECT_TRUE(fakes.loginItem.isRegistered());
}

TEST_F(SettingsRootViewTest, TheLoginToggleIsReadFromTheSystemAtEachShow) {
    EXPECT_FALSE(toggle("Start automatically on login")->isChecked());
    window().close();
    fakes.loginItem.setRegistered(true);
    open();
    EXPECT_TRUE(toggle("Start automatically on login")->isChecked());
}

TEST_F(SettingsRootViewTest, TheUpdateToggleIsTheUpdaters) {
    click(toggle("Automatically check for updates"));
    EXPECT_TRUE(delegate.updateService().automaticallyChecksForUpdates());
}

TEST_F(SettingsRootViewTest, TheSyncToggleStartsSyncAndShowsItsStateAndItsFields) {
    delegate.applicationDidFinishLaunching();
    auto* kind = find<Picker>("Keep data in");
    EXPECT_FALSE(kind->isVisible());
    click(toggle("Sync via iCloud"));
    EXPECT_TRUE(delegate.syncEngine().isStarted());
    EXPECT_TRUE(showsWords(QStringLiteral("Last synced: now")));
    EXPECT_TRUE(kind->isVisible());
    EXPECT_TRUE(find<TextField>("Folder")->isVisible());
    EXPECT_FALSE(find<TextField>("Address")->isVisible());
    fakes.cloudStore.setTrouble(QStringLiteral("The folder is full."));
    EXPECT_TRUE(showsWords(QStringLiteral("The folder is full.")));
    click(toggle("Sync via iCloud"));
    EXPECT_FALSE(delegate.syncEngine().isStarted());
    EXPECT_FALSE(kind->isVisible());
}

TEST_F(SettingsRootViewTest, TheEtcdFieldsAreStoredAndTestedInWords) {
    click(toggle("Sync via iCloud"));
    choose(find<Picker>("Keep data in"), QStringLiteral("An etcd server"));
    EXPECT_FALSE(find<TextField>("Folder")->isVisible());
    type(find<TextField>("Address"), "etcd.home.arpa:2379");
    EXPECT_EQ(find<TextField>("Address")->text(), QStringLiteral("https://etcd.home.arpa:2379"));
    type(find<TextField>("User"), "dropshade");
    type(find<TextField>("Password"), "geheim");
    EXPECT_EQ(find<TextField>("Password")->echoMode(), QLineEdit::Password);
    EXPECT_EQ(fakes.cloudAccounts.keptPassword, QStringLiteral("geheim"));
    click(find<TextButton>("Choose CA Certificate"));
    fakes.filePanels.choose(QStringLiteral("/etc/ca.pem"));
    EXPECT_EQ(CloudAccount::read(fakes.defaults).authority, QStringLiteral("/etc/ca.pem"));
    const auto buttons = window().findChildren<TextButton*>();
    click(*std::find_if(buttons.begin(), buttons.end(), [](const TextButton* button) {
        return button->text() == QStringLiteral("Test connection");
    }));
    fakes.cloudAccounts.answerCheck(QStringLiteral("The password is wrong."));
    EXPECT_TRUE(showsWords(QStringLiteral("The password is wrong.")));
}

TEST_F(SettingsRootViewTest, WhatWentWrongIsReadableHoweverManyLinesItTakes) {
    click(toggle("Sync via iCloud"));
    choose(find<Picker>("Keep data in"), QStringLiteral("An etcd server"));
    const auto buttons = window().findChildren<TextButton*>();
    click(*std::find_if(buttons.begin(), buttons.end(), [](const TextButton* button) {
        return button->text() == QStringLiteral("Test connection");
    }));
    const QString trouble =
        QStringLiteral("The server can't be reached: ") +
        QStringLiteral("the certificate of its authority has expired. ").repeated(4);
    fakes.cloudAccounts.answerCheck(trouble);
    fakes.cloudStore.setTrouble(trouble);
    EXPECT_TRUE(showsWords(trouble));
    const auto labels = window().findChildren<QLabel*>();
    const auto isWhole = [](const QLabel* label) {
        return !label->isVisible() || !label->wordWrap() ||
               label->height() >= label->heightForWidth(label->width());
    };
    // The layouts of one row find their sizes one after another.
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return std::all_of(labels.begin(), labels.end(), isWhole); }, 1000));
}

TEST_F(SettingsRootViewTest, AFolderIsChosenInAPanel) {
    click(toggle("Sync via iCloud"));
    click(find<TextButton>("Choose Folder"));
    ASSERT_EQ(fakes.filePanels.panels().size(), 1);
    fakes.filePanels.choose(QStringLiteral("/srv/shared"));
    EXPECT_EQ(find<TextField>("Folder")->text(), QStringLiteral("/srv/shared"));
    EXPECT_EQ(CloudAccount::read(fakes.defaults).folder, QStringLiteral("/srv/shared"));
}

TEST_F(SettingsRootViewTest, OnlyTheRowsOfTheSelectedFormatShowAndTheWindowFits) {
    auto* format = find<Picker>("Format");
    auto* precision = find<SegmentedControl>("Decimal precision");
    EXPECT_EQ(format->count(), 21);
    EXPECT_TRUE(toggle("Use # prefix for hex codes")->isVisible());
    EXPECT_FALSE(precision->isVisible());
    QCoreApplication::sendPostedEvents();
    const int withHexRows = window().height();
    choose(format, QStringLiteral("CSS RGB"));
    QCoreApplication::sendPostedEvents();
    EXPECT_FALSE(toggle("Use lowercase for copied colors")->isVisible());
    EXPECT_FALSE(toggle("Use # prefix for hex codes")->isVisible());
    EXPECT_FALSE(precision->isVisible());
    EXPECT_LE(window().height(), withHexRows);
    choose(format, QStringLiteral("NSColor RGB"));
    EXPECT_TRUE(precision->isVisible());
    click(precision->findChildren<QAbstractButton*>().at(1));
    EXPECT_EQ(fakes.defaults.read<qint64>(keys::decimalPlaces), 3);
}

TEST_F(SettingsRootViewTest, AnotherMachinesSettingsAppearInTheOpenWindowWithoutASound) {
    window();
    fakes.defaults.setValue(keys::copySound, QStringLiteral("pop"));
    fakes.defaults.setValue(keys::useLowercase, true);
    fakes.defaults.setValue(keys::recentColorsLimit, qint64(30));
    fakes.defaults.setValue(keys::menuBarIconStyle, QStringLiteral("swatch"));
    delegate.settings().reloadFromDefaults();
    EXPECT_EQ(find<Picker>("Copy sound")->currentText(), QStringLiteral("Pop"));
    EXPECT_TRUE(toggle("Use lowercase for copied colors")->isChecked());
    EXPECT_EQ(find<TextField>("Recent colors in menu")->text(), QStringLiteral("30"));
    const auto tiles = window().findChild<MenuBarIconPicker*>()->findChildren<QAbstractButton*>();
    EXPECT_TRUE(tiles.at(1)->isChecked());
    EXPECT_TRUE(fakes.previewPlayer.played().isEmpty());
}

TEST_F(SettingsRootViewTest, EveryControlHasANameAndAWayToItByTheKeyboard) {
    click(toggle("Sync via iCloud"));
    QSet<QWidget*> reached;
    window().setFocus();
    for (int step = 0; step < 60; ++step) {
        ASSERT_NE(window().focusWidget(), nullptr);
        pressTab(window().focusWidget());
        reached.insert(window().focusWidget());
    }
    for (auto* control : window().findChildren<QWidget*>()) {
        const bool isControl =
            qobject_cast<QAbstractButton*>(control) || qobject_cast<QLineEdit*>(control);
        if (!isControl || !control->isVisible())
            continue;
        const auto* button = qobject_cast<QAbstractButton*>(control);
        EXPECT_FALSE(control->accessibleName().isEmpty() && (!button || button->text().isEmpty()))
            << control->metaObject()->className();
        // Of a group of choices the Tab key reaches the selected one.
        const bool isOtherChoice = button && button->autoExclusive() && !button->isChecked();
        EXPECT_TRUE(isOtherChoice || reached.contains(control))
            << qPrintable(control->accessibleName()) << control->metaObject()->className();
    }
}

TEST_F(SettingsRootViewTest, WhereTheDesktopKeepsShortcutsToItselfItGivesTheCommandsForThem) {
    fakes.hotKeys.setAvailable(false);
    EXPECT_TRUE(window().findChildren<RecorderCocoa*>().isEmpty());
    QCoreApplication::processEvents();
    click(find<TextButton>("Copy the Command of Palettes"));
    EXPECT_EQ(fakes.pasteboard.text(), fakes.instance.commandFor(ApplicationAction::Palettes));
}

/// On a desktop that has the keys itself.
class DesktopKeysInSettings : public SettingsRootViewTest {
protected:
    DesktopKeysInSettings() { fakes.hotKeys.setAvailable(false); }

    [[nodiscard]] TriggerField* field() {
        QCoreApplication::processEvents();
        return find<TriggerField>("Quick Pick");
    }
    /// Words that stand in the footer alone.
    [[nodiscard]] bool footerSays(const QString& words) {
        const auto labels = window().findChildren<QLabel*>();
        return std::any_of(labels.begin(), labels.end(), [&words](const QLabel* label) {
            return label->isVisible() && label->text().contains(words);
        });
    }

    const QString pick = shortcutNames::pickColor.rawValue;
};

TEST_F(DesktopKeysInSettings, BeforeAnyAreBoundAClickHasTheDesktopAsk) {
    fakes.desktopShortcuts.offer();
    EXPECT_TRUE(window().findChildren<RecorderCocoa*>().isEmpty());
    EXPECT_EQ(field()->accessibleDescription(), QStringLiteral("Choose Shortcut…"));
    EXPECT_FALSE(find<TextButton>("Copy the Command of Palettes")->isVisible());
    click(field());
    EXPECT_EQ(fakes.desktopShortcuts.state(), DesktopShortcuts::State::Asking);
    EXPECT_EQ(field()->accessibleDescription(), QStringLiteral("The Desktop Asks…"));
}

TEST_F(DesktopKeysInSettings, TheDesktopsTriggerStandsInPlaceOfTheRecorder) {
    fakes.desktopShortcuts.answer({{pick, QStringLiteral("Meta+Shift+C")}});
    EXPECT_EQ(field()->accessibleDescription(), QStringLiteral("Meta+Shift+C"));
    EXPECT_EQ(find<TriggerField>("Palettes")->accessibleDescription(),
              QStringLiteral("No Shortcut"));
    EXPECT_TRUE(footerSays(QStringLiteral("change them in its settings")));
}

TEST_F(DesktopKeysInSettings, WhereOnlyTheDesktopChangesThemAClickTellsWhere) {
    fakes.desktopShortcuts.answer({{pick, QStringLiteral("F9")}});
    click(field());
    ASSERT_EQ(fakes.alerts.shown().size(), 1);
    EXPECT_TRUE(fakes.alerts.shown().first().text.contains(QStringLiteral("lists Dropshade")));
    EXPECT_EQ(fakes.desktopShortcuts.state(), DesktopShortcuts::State::Bound);
    EXPECT_EQ(fakes.desktopShortcuts.configurations(), 0);
}

TEST_F(DesktopKeysInSettings, AChangeInTheDesktopShowsInTheOpenWindow) {
    fakes.desktopShortcuts.answer({{pick, QStringLiteral("F9")}});
    ASSERT_TRUE(field()->isVisible());
    fakes.desktopShortcuts.answer({{pick, QStringLiteral("F7")}});
    EXPECT_EQ(field()->accessibleDescription(), QStringLiteral("F7"));
    fakes.desktopShortcuts.vanish();
    EXPECT_FALSE(field()->isVisible());
    EXPECT_TRUE(find<TextButton>("Copy the Command of Palettes")->isVisible());
    EXPECT_TRUE(footerSays(QStringLiteral("keeps shortcuts to itself")));
}

TEST_F(DesktopKeysInSettings, WhereTheDesktopShowsItsSettingsAClickOrTheSpaceBarOpensThem) {
    fakes.desktopShortcuts.setCanConfigure(true);
    fakes.desktopShortcuts.answer({{pick, QStringLiteral("F9")}});
    EXPECT_TRUE(footerSays(QStringLiteral("click one")));
    click(field());
    EXPECT_EQ(fakes.desktopShortcuts.configurations(), 1);
    field()->setFocus();
    QTest::keyClick(field(), Qt::Key_Space);
    EXPECT_EQ(fakes.desktopShortcuts.configurations(), 2);
}

TEST_F(DesktopKeysInSettings, AVeryLongTriggerLeavesTheWindowAsItIs) {
    fakes.desktopShortcuts.answer({{pick, QStringLiteral("F9")}});
    const int wide = field()->width();
    fakes.desktopShortcuts.answer({{pick, QString(400, u'W')}});
    EXPECT_EQ(field()->width(), wide);
    EXPECT_EQ(field()->toolTip(), QString(400, u'W'));
}

/// What a screen reader finds, from `from` downwards.
void collect(QAccessibleInterface* from, QList<QAccessibleInterface*>& found) {
    found.append(from);
    for (int i = 0; i < from->childCount(); ++i) {
        if (QAccessibleInterface* child = from->child(i))
            collect(child, found);
    }
}

TEST_F(SettingsRootViewTest, AScreenReaderFindsEveryControlWithItsRoleAndName) {
    click(toggle("Sync via iCloud"));
    QCoreApplication::processEvents();
    QList<QAccessibleInterface*> all;
    collect(QAccessible::queryAccessibleInterface(&window()), all);
    QMap<QAccessible::Role, int> roles;
    for (QAccessibleInterface* each : std::as_const(all)) {
        if (each->state().invisible || !each->state().focusable)
            continue;
        ++roles[each->role()];
        EXPECT_FALSE(each->text(QAccessible::Name).isEmpty()) << each->role();
        EXPECT_NE(each->role(), QAccessible::Client) << qPrintable(each->text(QAccessible::Name));
    }
    EXPECT_GE(roles[QAccessible::RadioButton], 3);
    EXPECT_GE(roles[QAccessible::EditableText], 2);
    EXPECT_GE(roles[QAccessible::CheckBox], 5);
    EXPECT_GE(roles[QAccessible::Button] + roles[QAccessible::ButtonMenu], 6);
}

} // namespace
} // namespace dropshade
