// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "app/AppDelegate.h"
#include "app/RecentColor.h"
#include "app/SettingsReaders.h"
#include "support/FakePlatform.h"

#include <QApplication>
#include <QFile>
#include <QKeyEvent>
#include <QMenu>
#include <QTemporaryDir>
#include <QWindow>

#include <gtest/gtest.h>

namespace dropshade {
namespace {

const SRGBColor pink(1.0, 0.0, 128.0 / 255.0, 0.5);

const Shortcut controlC{8, controlKey};
const FakeHotKeyRegistrar::Combination controlCKeys(8, controlKey);

class AppDelegateTest : public testing::Test {
protected:
    AppDelegateTest() { delegate.applicationDidFinishLaunching(); }

    [[nodiscard]] qint64 copyCount() const {
        return fakes.defaults.read<qint64>(keys::totalChecksCount).value_or(0);
    }

    [[nodiscard]] QImage lastIcon() const {
        return fakes.statusItem.icons().back().pixmap(QSize(36, 36)).toImage();
    }

    static QMenu* openMenu() { return qobject_cast<QMenu*>(QApplication::activePopupWidget()); }

    FakePlatform fakes;
    AppDelegate delegate{std::move(fakes.platform)};
};

TEST_F(AppDelegateTest, RightClickStartsASample) {
    fakes.statusItem.click(Qt::RightButton);
    EXPECT_TRUE(fakes.screenSampler.isUp());
    EXPECT_TRUE(delegate.isPicking());
}

TEST_F(AppDelegateTest, ControlClickWithEitherButtonStartsASample) {
    fakes.statusItem.click(Qt::LeftButton, Qt::ControlModifier);
    EXPECT_TRUE(fakes.screenSampler.isUp());
    fakes.screenSampler.cancel();
    fakes.statusItem.click(Qt::RightButton, Qt::ControlModifier);
    EXPECT_TRUE(fakes.screenSampler.isUp());
}

TEST_F(AppDelegateTest, MiddleClickStartsASampleWherePanelsKeepTheRightOne) {
    fakes.statusItem.click(Qt::MiddleButton);
    EXPECT_TRUE(fakes.screenSampler.isUp());
}

TEST_F(AppDelegateTest, LeftClickOpensTheMenuAndSamplesNothing) {
    fakes.statusItem.click();
    EXPECT_FALSE(fakes.screenSampler.isUp());
    ASSERT_NE(openMenu(), nullptr);
    EXPECT_EQ(openMenu()->actions().first()->text(),
              QStringLiteral("Control-click for quick pick"));
    EXPECT_FALSE(openMenu()->actions().first()->isEnabled());
}

TEST_F(AppDelegateTest, OtherModifiersHaveNoMeaningForAClick) {
    fakes.statusItem.click(Qt::LeftButton, Qt::AltModifier | Qt::MetaModifier | Qt::ShiftModifier);
    EXPECT_FALSE(fakes.screenSampler.isUp());
    EXPECT_NE(openMenu(), nullptr);
}

TEST_F(AppDelegateTest, StartingTheProgramOnceMoreOpensTheMenu) {
    fakes.instance.activate();
    EXPECT_NE(openMenu(), nullptr);
}

TEST_F(AppDelegateTest, QuickPickSamplesOnceTheMenuHasFadedFromTheScreen) {
    fakes.statusItem.click();
    openMenu()->actions().at(2)->trigger();
    EXPECT_FALSE(fakes.screenSampler.isUp());
    fakes.scheduler.advance(std::chrono::milliseconds(100));
    EXPECT_TRUE(fakes.screenSampler.isUp());
}

TEST_F(AppDelegateTest, ARememberedColorIsCopiedWithItsSoundAndCountsForNothing) {
    delegate.copyColor(pink);
    delegate.copyColor(SRGBColor(0, 0, 0));
    const auto recents = loadRecentColors(fakes.defaults);
    fakes.statusItem.click();
    fakes.defaults.setFromAnotherProcess(keys::colorFormat, QStringLiteral("hexa"));
    for (const QAction* action : openMenu()->actions()) {
        if (QMenu* submenu = QMenu::menuInAction(action))
            submenu->actions().at(1)->trigger();
    }
    EXPECT_EQ(fakes.pasteboard.text(), QStringLiteral("#FF008080"));
    EXPECT_EQ(copyCount(), 2);
    EXPECT_EQ(loadRecentColors(fakes.defaults), recents);
    EXPECT_EQ(fakes.soundPlayer.played().size(), 3);
}

TEST_F(AppDelegateTest, AFavouriteIsCopiedAndTheRecentColorsCanBeCleared) {
    const Palette palette = delegate.paletteStore().palettes().first();
    const PaletteScale& scale = palette.scales().first();
    delegate.settings().pinSwatch(scale.swatches().first(), palette, scale);
    delegate.copyColor(pink);
    fakes.statusItem.click();
    QList<QMenu*> submenus;
    for (const QAction* action : openMenu()->actions()) {
        if (QMenu* submenu = QMenu::menuInAction(action))
            submenus.append(submenu);
    }
    ASSERT_EQ(submenus.size(), 2);
    submenus[0]->actions().at(1)->trigger();
    const SRGBColor pinned = delegate.settings().pinnedColors().first().cachedColor();
    EXPECT_EQ(fakes.pasteboard.text(),
              QString::fromStdString(formatted(pinned, ColorFormat::hex, {})));
    EXPECT_EQ(copyCount(), 1);
    submenus[1]->actions().last()->trigger();
    EXPECT_TRUE(loadRecentColors(fakes.defaults).isEmpty());
}

TEST_F(AppDelegateTest, TheDesktopsActionPicksAndTakesAnOpenMenuAwayFirst) {
    fakes.statusItem.click();
    fakes.instance.activate(ApplicationAction::QuickPick);
    EXPECT_EQ(openMenu(), nullptr);
    fakes.scheduler.advance(std::chrono::milliseconds(100));
    EXPECT_TRUE(fakes.screenSampler.isUp());
    fakes.screenSampler.cancel();
    fakes.instance.activate(ApplicationAction::QuickPick);
    EXPECT_EQ(fakes.screenSampler.sampleCount(), 2);
}

TEST_F(AppDelegateTest, WhereThereIsAStatusAreaNothingIsExplained) {
    fakes.scheduler.advance(std::chrono::minutes(1));
    EXPECT_TRUE(fakes.alerts.shown().isEmpty());
}

TEST(AppDelegateWithoutStatusArea, SaysOnceHowItIsReached) {
    FakePlatform fakes;
    MemoryDefaults& defaults = fakes.defaults;
    fakes.statusItem.setHasHost(false);
    AppDelegate delegate{std::move(fakes.platform)};
    delegate.applicationDidFinishLaunching();
    fakes.scheduler.advance(std::chrono::seconds(9));
    EXPECT_TRUE(fakes.alerts.shown().isEmpty());
    fakes.scheduler.advance(std::chrono::seconds(1));
    ASSERT_EQ(fakes.alerts.shown().size(), 1);
    EXPECT_TRUE(fakes.alerts.shown().first().text.contains(QStringLiteral("start it once more")));

    FakePlatform again;
    for (const QString& key : defaults.keys())
        again.defaults.setFromAnotherProcess(key, *defaults.value(key));
    again.statusItem.setHasHost(false);
    AppDelegate second{std::move(again.platform)};
    second.applicationDidFinishLaunching();
    again.scheduler.advance(std::chrono::minutes(1));
    EXPECT_TRUE(again.alerts.shown().isEmpty());
}

TEST_F(AppDelegateTest, NoShortcutIsBoundUntilTheUserRecordsOne) {
    EXPECT_TRUE(fakes.hotKeys.combinations().empty());
}

TEST_F(AppDelegateTest, TheShortcutOfThePickSamplesOnRelease) {
    delegate.shortcuts().setShortcut(controlC, shortcutNames::pickColor);
    fakes.hotKeys.press(controlCKeys);
    fakes.hotKeys.press(controlCKeys);
    EXPECT_FALSE(fakes.screenSampler.isUp());
    fakes.hotKeys.release(controlCKeys.first);
    EXPECT_TRUE(fakes.screenSampler.isUp());
}

TEST_F(AppDelegateTest, AKeyOfTheDesktopSamplesOnRelease) {
    const QString pick = shortcutNames::pickColor.rawValue;
    fakes.desktopShortcuts.answer({{pick, QStringLiteral("F9")}});
    fakes.desktopShortcuts.press(pick);
    EXPECT_FALSE(delegate.isPicking());
    fakes.desktopShortcuts.release(pick);
    EXPECT_TRUE(delegate.isPicking());
}

TEST_F(AppDelegateTest, TheShortcutOfThePickPressedTwiceStartsOneSampler) {
    delegate.shortcuts().setShortcut(controlC, shortcutNames::pickColor);
    fakes.hotKeys.pressAndRelease(controlCKeys);
    fakes.hotKeys.pressAndRelease(controlCKeys);
    EXPECT_EQ(fakes.screenSampler.sampleCount(), 1);
}

TEST_F(AppDelegateTest, TheShortcutOfThePickFirstTakesAnOpenMenuOffTheScreen) {
    delegate.shortcuts().setShortcut(controlC, shortcutNames::pickColor);
    fakes.statusItem.click();
    QWindow* menu = openMenu()->windowHandle();
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, Qt::Key_C, Qt::ControlModifier,
                        controlC.carbonKeyCode + FakeKeyboardLayout::scanCodeOffset, 0, 0);
        QCoreApplication::sendEvent(menu, &event);
    }
    EXPECT_EQ(openMenu(), nullptr);
    EXPECT_FALSE(fakes.screenSampler.isUp());
    fakes.scheduler.advance(std::chrono::milliseconds(100));
    EXPECT_TRUE(fakes.screenSampler.isUp());
}

TEST_F(AppDelegateTest, QuitAsksForTheEndOfTheProgram) {
    int requests = 0;
    QObject::connect(&delegate, &AppDelegate::quitRequested, [&] { ++requests; });
    fakes.statusItem.click();
    openMenu()->actions().last()->trigger();
    EXPECT_EQ(requests, 1);
}

class AppDelegateExport : public AppDelegateTest {
protected:
    AppDelegateExport() {
        QObject::connect(&delegate, &AppDelegate::quitRequested, [this] { ++quits; });
    }
    /// Up to where the file is to be written.
    void exportTo(const QString& path) {
        delegate.paletteExporter().exportPalette(delegate.paletteStore().palettes().first(),
                                                 PaletteExportFormat::png);
        fakes.scheduler.advance(0);
        fakes.filePanels.choose(path);
    }
    void chooseQuit() {
        fakes.instance.activate();
        openMenu()->actions().last()->trigger();
    }

    QTemporaryDir folder;
    QString file = folder.filePath(QStringLiteral("a.png"));
    int quits = 0;
};

TEST_F(AppDelegateExport, QuitWaitsForAFileThatIsOnItsWay) {
    exportTo(file);
    chooseQuit();
    EXPECT_EQ(quits, 0);
    fakes.backgroundQueue.workAndLand();
    EXPECT_TRUE(QFile::exists(file));
    EXPECT_EQ(quits, 1);
}

TEST_F(AppDelegateExport, AFileThatFailsIsToldAndCallsTheQuitOff) {
    exportTo(folder.filePath(QStringLiteral("vanished/a.png")));
    chooseQuit();
    fakes.backgroundQueue.workAndLand();
    EXPECT_EQ(fakes.alerts.waitingCount(), 1);
    EXPECT_EQ(quits, 0);
    chooseQuit();
    EXPECT_EQ(quits, 1);
}

TEST_F(AppDelegateExport, AnEndThatNobodyAskedForFindsTheFileWritten) {
    exportTo(file);
    delegate.applicationWillTerminate();
    EXPECT_TRUE(QFile::exists(file));
}

TEST_F(AppDelegateTest, PutsThePickedColorOnTheClipboardAsHexByDefault) {
    delegate.startPick();
    fakes.screenSampler.pick(pink);
    EXPECT_EQ(fakes.pasteboard.copies(), QStringList{QStringLiteral("#FF0080")});
    EXPECT_FALSE(delegate.isPicking());
}

TEST_F(AppDelegateTest, ReadsTheFormatAndTheOptionsFreshAtEachPick) {
    delegate.startPick();
    fakes.defaults.setFromAnotherProcess(keys::colorFormat, QStringLiteral("hexa"));
    fakes.defaults.setFromAnotherProcess(keys::useHashPrefix, false);
    fakes.defaults.setFromAnotherProcess(keys::useLowercase, true);
    fakes.screenSampler.pick(pink);
    EXPECT_EQ(fakes.pasteboard.text(), QStringLiteral("ff008080"));
}

TEST_F(AppDelegateTest, ShowsTheTextOfTheChosenFormatInTheLoupe) {
    fakes.defaults.setValue(keys::colorFormat, QStringLiteral("cssRGB"));
    delegate.startPick();
    EXPECT_EQ(fakes.screenSampler.described(pink), QStringLiteral("rgb(255 0 128)"));
}

TEST_F(AppDelegateTest, CountsEachCopyFromZeroWhenUnset) {
    delegate.startPick();
    fakes.screenSampler.pick(pink);
    delegate.startPick();
    fakes.screenSampler.pick(pink);
    EXPECT_EQ(copyCount(), 2);
}

TEST_F(AppDelegateTest, ACancelledSampleLeavesClipboardAndCounterAloneAndTheNextClickWorks) {
    fakes.pasteboard.setTextFromAnotherProgram(QStringLiteral("theirs"));
    delegate.startPick();
    fakes.screenSampler.cancel();
    EXPECT_EQ(fakes.pasteboard.text(), QStringLiteral("theirs"));
    EXPECT_EQ(copyCount(), 0);
    EXPECT_FALSE(delegate.isPicking());

    fakes.statusItem.click(Qt::RightButton);
    EXPECT_TRUE(fakes.screenSampler.isUp());
}

TEST_F(AppDelegateTest, TwoQuickTriggersStartOneSampler) {
    fakes.statusItem.click(Qt::RightButton);
    fakes.statusItem.click(Qt::RightButton);
    EXPECT_EQ(fakes.screenSampler.sampleCount(), 1);
}

TEST_F(AppDelegateTest, CopiesAColorInAFormatOfTheCallersChoice) {
    delegate.copyColor(pink, ColorFormat::cssRGBA);
    EXPECT_EQ(fakes.pasteboard.text(), QStringLiteral("rgb(255 0 128 / 0.5)"));
    EXPECT_EQ(copyCount(), 1);
    EXPECT_FALSE(delegate.isPicking());
}

TEST_F(AppDelegateTest, PlaysTheSoundOfTheSettingsOnceTheTextIsOnTheClipboard) {
    fakes.statusItem.click(Qt::RightButton);
    fakes.screenSampler.cancel();
    EXPECT_TRUE(fakes.soundPlayer.played().isEmpty());
    fakes.statusItem.click(Qt::RightButton);
    fakes.screenSampler.pick(pink);
    EXPECT_EQ(fakes.soundPlayer.played(), QStringList{QStringLiteral(":/sounds/drop.aiff")});
    fakes.defaults.setValue(keys::copySound, QStringLiteral("none"));
    delegate.copyColor(pink);
    EXPECT_EQ(fakes.soundPlayer.played().size(), 1);
}

TEST_F(AppDelegateTest, ReplacesTheImageAtOnceWhenTheIconStyleChanges) {
    const QImage picker = lastIcon();
    delegate.settings().setMenuBarIconStyle(MenuBarIconStyle::Swatch);
    const QImage swatch = lastIcon();
    delegate.settings().setMenuBarIconStyle(MenuBarIconStyle::Palette);
    const QImage palette = lastIcon();
    EXPECT_NE(picker, swatch);
    EXPECT_NE(swatch, palette);
    EXPECT_NE(palette, picker);
}

TEST_F(AppDelegateTest, DrawsTheStatusItemInTheInkOfTheDesktopsScheme) {
    const QImage light = lastIcon();
    fakes.appearance.setDark(true);
    EXPECT_NE(lastIcon(), light);
}

TEST_F(AppDelegateTest, TakesTheImageAwayBeforeTheProgramWaitsForAnybody) {
    delegate.applicationWillTerminate();
    EXPECT_TRUE(fakes.statusItem.icons().back().isNull());
}

} // namespace
} // namespace dropshade
