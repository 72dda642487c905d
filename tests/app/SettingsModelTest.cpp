// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "app/SettingsModel.h"

#include "app/CopySound.h"
#include "app/RecentColor.h"
#include "app/SettingsReaders.h"
#include "support/FakeFeedFetcher.h"
#include "support/FakeLoginItem.h"
#include "support/FakeSoundPlayer.h"
#include "support/FakeUpdatePrompt.h"
#include "sync/SyncFixture.h"

#include <QLocale>

namespace dropshade {
namespace {

class SettingsModelTest : public SyncFixture {
protected:
    SettingsModel& model() {
        if (!m_model)
            m_model = std::make_unique<SettingsModel>(SettingsModel::Surroundings{
                defaults(), scheduler(), settings(), m_player, m_loginItem,
                [this]() -> UpdateService& { return updateService(); },
                [this]() -> CloudSyncEngine& { return engine(); }});
        return *m_model;
    }
    UpdateService& updateService() {
        if (!m_updateService)
            m_updateService = std::make_unique<UpdateService>(
                UpdateService::Surroundings{defaults(), scheduler(), m_fetcher, m_prompt},
                VersionNumber());
        return *m_updateService;
    }
    void record(int colors) {
        for (int i = 0; i < colors; ++i)
            recordRecentColor(defaults(), SRGBColor(i / 100.0, 0.0, 0.0, 1.0));
    }
    [[nodiscard]] qsizetype recentCount() { return loadRecentColors(defaults()).size(); }
    /// Another machine's settings come in.
    void receive(const QString& key, const DefaultsValue& value) {
        defaults().setValue(key, value);
        settings().reloadFromDefaults();
    }

    FakeSoundPlayer m_player;
    FakeLoginItem m_loginItem;
    FakeFeedFetcher m_fetcher;
    FakeUpdatePrompt m_prompt;
    std::unique_ptr<UpdateService> m_updateService;
    std::unique_ptr<SettingsModel> m_model;
};

TEST_F(SettingsModelTest, ShowsTheDefaultsOfAFreshInstall) {
    EXPECT_EQ(model().menuBarIconStyle(), MenuBarIconStyle::Picker);
    EXPECT_EQ(model().recentColorsLimit(), 8);
    EXPECT_EQ(model().copySound(), QStringLiteral("drop"));
    EXPECT_FALSE(model().launchAtLogin());
    EXPECT_FALSE(model().autoCheckUpdates());
    EXPECT_FALSE(model().iCloudSyncEnabled());
    EXPECT_EQ(model().colorFormat(), ColorFormat::hex);
    EXPECT_TRUE(model().useHashPrefix());
    EXPECT_FALSE(model().useLowercase());
    EXPECT_EQ(model().decimalPlaces(), 2);
    EXPECT_TRUE(model().showRecentColors());
}

TEST_F(SettingsModelTest, ShowingTheWindowWritesAndPlaysNothing) {
    const int pending = scheduler().pendingCount();
    const SignalCount writes(defaults(), &UserDefaults::didChange);
    model().reload();
    EXPECT_EQ(writes.count(), 0);
    EXPECT_TRUE(m_player.played().isEmpty());
    EXPECT_EQ(scheduler().pendingCount(), pending);
}

TEST_F(SettingsModelTest, TheIconStyleGoesToTheSettingsThatTheStatusItemFollows) {
    const SignalCount styles(settings(), &AppSettings::menuBarIconStyleDidChange);
    const SignalCount changes(model(), &SettingsModel::didChange);
    model().setMenuBarIconStyle(MenuBarIconStyle::Palette);
    EXPECT_EQ(styles.count(), 1);
    EXPECT_EQ(changes.count(), 1);
    EXPECT_EQ(defaults().read<QString>(keys::menuBarIconStyle), QStringLiteral("palette"));
}

TEST_F(SettingsModelTest, NinetyNineRecentColorsAreFiftyAndTheListIsCutToThem) {
    defaults().setValue(keys::recentColorsLimit, qint64(50));
    record(50);
    model().setRecentColorsLimitText(QStringLiteral("99"));
    EXPECT_EQ(model().recentColorsLimit(), 50);
    EXPECT_EQ(defaults().read<qint64>(keys::recentColorsLimit), 50);
    EXPECT_EQ(recentCount(), 50);
    model().setRecentColorsLimitText(QStringLiteral("3"));
    EXPECT_EQ(recentCount(), 3);
}

TEST_F(SettingsModelTest, ZeroRecentColorsLeaveAnEmptyListAndKeepZero) {
    record(5);
    model().setRecentColorsLimitText(QStringLiteral("0"));
    EXPECT_EQ(model().recentColorsLimit(), 0);
    EXPECT_EQ(defaults().read<qint64>(keys::recentColorsLimit), 0);
    EXPECT_EQ(recentCount(), 0);
}

TEST_F(SettingsModelTest, ANumberOfAnySizeOrSignIsPinned) {
    for (const auto& [text, limit] :
         {std::pair{"-3", 0}, std::pair{"99999999999999999999999", 50},
          std::pair{"-99999999999999999999", 0}, std::pair{" 12 ", 12}, std::pair{"1,000", 50}}) {
        model().setRecentColorsLimitText(QString::fromUtf8(text));
        EXPECT_EQ(model().recentColorsLimit(), limit) << text;
    }
}

TEST_F(SettingsModelTest, WhatIsNoWholeNumberIsNotTakenAndTheFieldGoesBack) {
    const SignalCount changes(model(), &SettingsModel::didChange);
    const QStringList texts{QString(), QStringLiteral("many"), QStringLiteral("2.5"),
                            QStringLiteral("inf"), QStringLiteral("nan")};
    for (const QString& text : texts)
        model().setRecentColorsLimitText(text);
    EXPECT_EQ(model().recentColorsLimit(), 8);
    EXPECT_FALSE(defaults().contains(keys::recentColorsLimit));
    EXPECT_EQ(changes.count(), texts.size());
}

TEST_F(SettingsModelTest, TheSoundMenuNamesTheDefaultAndSilence) {
    EXPECT_EQ(SettingsModel::copySoundTitle(QStringLiteral("none")), QStringLiteral("None"));
    EXPECT_EQ(SettingsModel::copySoundTitle(QStringLiteral("drop")),
              QStringLiteral("Drop (default)"));
    EXPECT_EQ(SettingsModel::copySoundTitle(QStringLiteral("whoosh")), QStringLiteral("Whoosh"));
}

TEST_F(SettingsModelTest, AChosenSoundIsStoredAndHeardAtOnceAlsoWhereItWasChosenBefore) {
    model().chooseCopySound(QStringLiteral("drop"));
    model().chooseCopySound(QStringLiteral("drop"));
    EXPECT_EQ(m_player.played().size(), 2);
    model().chooseCopySound(QStringLiteral("coin"));
    EXPECT_EQ(m_player.played().constLast(), QStringLiteral(":/sounds/coin.aiff"));
    EXPECT_EQ(defaults().read<QString>(keys::copySound), QStringLiteral("coin"));
}

TEST_F(SettingsModelTest, ChoosingNoneStoresItAndIsSilent) {
    model().chooseCopySound(noCopySound);
    EXPECT_EQ(defaults().read<QString>(keys::copySound), QStringLiteral("none"));
    EXPECT_TRUE(m_player.played().isEmpty());
}

TEST_F(SettingsModelTest, TheLoginToggleIsWhatTheSystemSays) {
    model().setLaunchAtLogin(true);
    EXPECT_TRUE(m_loginItem.isRegistered());
    EXPECT_TRUE(model().launchAtLogin());
    m_loginItem.setRegistered(false);
    model().reload();
    EXPECT_FALSE(model().launchAtLogin());
}

TEST_F(SettingsModelTest, WhereTheSystemRefusesTheLoginToggleStaysAsItWasWithoutAWord) {
    const SignalCount changes(model(), &SettingsModel::didChange);
    m_loginItem.setRefuses(true);
    model().setLaunchAtLogin(true);
    EXPECT_FALSE(model().launchAtLogin());
    EXPECT_EQ(changes.count(), 1) << "the view puts its toggle back";
    m_loginItem.setRegistered(true);
    model().reload();
    model().setLaunchAtLogin(false);
    EXPECT_TRUE(model().launchAtLogin());
}

TEST_F(SettingsModelTest, TheUpdateToggleIsTheUpdaters) {
    model().setAutoCheckUpdates(true);
    EXPECT_TRUE(model().autoCheckUpdates());
    EXPECT_TRUE(updateService().automaticallyChecksForUpdates());
    model().setAutoCheckUpdates(false);
    EXPECT_FALSE(model().autoCheckUpdates());
}

TEST_F(SettingsModelTest, TheSyncToggleGoesToTheSettingsThatStartTheEngine) {
    const SignalCount switches(settings(), &AppSettings::iCloudSyncEnabledDidChange);
    model().setICloudSyncEnabled(true);
    EXPECT_EQ(switches.count(), 1);
    EXPECT_EQ(defaults().read<bool>(keys::iCloudSyncEnabled), true);
}

TEST_F(SettingsModelTest, TheSyncStatusShowsWithTheToggleOnOnly) {
    EXPECT_TRUE(model().syncStatus().words.isEmpty());
    EXPECT_EQ(m_engine, nullptr) << "nobody builds the engine to say that it is off";
    model().setICloudSyncEnabled(true);
    engine().start();
    EXPECT_EQ(model().syncStatus().words, QStringLiteral("Last synced: now"));
    model().setICloudSyncEnabled(false);
    EXPECT_TRUE(model().syncStatus().words.isEmpty());
}

TEST_F(SettingsModelTest, TheWordsOfTheSyncStatusGoOnWhileTheyAreSeen) {
    model().setICloudSyncEnabled(true);
    engine().start();
    scheduler().advance(10000);
    EXPECT_EQ(model().syncStatus().words, QStringLiteral("Last synced: now"));
    const int pending = scheduler().pendingCount();
    model().setShown(true);
    const QString before = model().syncStatus().words;
    scheduler().advance(130000);
    EXPECT_NE(model().syncStatus().words, before);
    model().setShown(false);
    EXPECT_LE(scheduler().pendingCount(), pending) << "nothing wakes up for a hidden window";
}

TEST_F(SettingsModelTest, ARawFormatThatIsNoneIsNotStored) {
    model().setColorFormatRaw(QStringLiteral("cssRGB"));
    EXPECT_EQ(model().colorFormat(), ColorFormat::cssRGB);
    model().setColorFormatRaw(QStringLiteral("CSSRGB"));
    model().setColorFormatRaw(QString());
    EXPECT_EQ(defaults().read<QString>(keys::colorFormat), QStringLiteral("cssRGB"));
}

TEST_F(SettingsModelTest, AStoredFormatThatIsNoneShowsAsHexAndItsRowsFollow) {
    defaults().setValue(keys::colorFormat, QStringLiteral("pantone"));
    EXPECT_EQ(model().colorFormat(), ColorFormat::hex);
    EXPECT_TRUE(model().showsHexRows());
}

TEST_F(SettingsModelTest, AFormatOfAnEarlierVersionShowsAndStaysStoredUntilOneIsPicked) {
    defaults().setValue(keys::colorFormat, QStringLiteral("rgb"));
    EXPECT_EQ(model().colorFormat(), ColorFormat::cssRGB);
    EXPECT_FALSE(model().showsHexRows());
    EXPECT_FALSE(model().showsPrecisionRow());
    EXPECT_EQ(defaults().read<QString>(keys::colorFormat), QStringLiteral("rgb"));
}

TEST_F(SettingsModelTest, OnlyTheRowsOfTheSelectedFormatShow) {
    int hexRows = 0;
    int precisionRows = 0;
    for (const ColorFormatGroup& group : formatGroups()) {
        for (const ColorFormat format : group.formats) {
            model().setColorFormatRaw(QString::fromStdString(std::string(rawValue(format))));
            EXPECT_FALSE(model().showsHexRows() && model().showsPrecisionRow());
            hexRows += model().showsHexRows() ? 1 : 0;
            precisionRows += model().showsPrecisionRow() ? 1 : 0;
        }
    }
    EXPECT_EQ(hexRows, 2);
    EXPECT_EQ(precisionRows, 9);
    model().setColorFormatRaw(QStringLiteral("nsColorRGB"));
    EXPECT_TRUE(model().showsPrecisionRow());
    model().setColorFormatRaw(QStringLiteral("objcUIColorRGB"));
    EXPECT_TRUE(model().showsPrecisionRow());
    model().setColorFormatRaw(QStringLiteral("dotNetRGB"));
    EXPECT_FALSE(model().showsPrecisionRow());
}

TEST_F(SettingsModelTest, TheFormatOptionsAreStoredAtTheirChange) {
    model().setUseLowercase(true);
    model().setUseHashPrefix(false);
    model().setDecimalPlaces(4);
    EXPECT_EQ(formatOptions(defaults()), (FormatOptions{false, true, 4}));
    EXPECT_TRUE(model().useLowercase());
    EXPECT_FALSE(model().useHashPrefix());
    EXPECT_EQ(model().decimalPlaces(), 4);
}

TEST_F(SettingsModelTest, AChangeOnAnotherMachineShowsAtOnceAndPlaysNothing) {
    const SignalCount changes(model(), &SettingsModel::didChange);
    receive(keys::copySound, QStringLiteral("coin"));
    EXPECT_EQ(model().copySound(), QStringLiteral("coin"));
    receive(keys::recentColorsLimit, qint64(20));
    EXPECT_EQ(model().recentColorsLimit(), 20);
    receive(keys::menuBarIconStyle, QStringLiteral("swatch"));
    EXPECT_EQ(model().menuBarIconStyle(), MenuBarIconStyle::Swatch);
    receive(keys::showRecentColors, false);
    EXPECT_FALSE(model().showRecentColors());
    EXPECT_GE(changes.count(), 4);
    EXPECT_TRUE(m_player.played().isEmpty());
}

TEST_F(SettingsModelTest, EqualValuesOfAnotherMachineWakeNobody) {
    const SignalCount changes(model(), &SettingsModel::didChange);
    receive(keys::decimalPlaces, qint64(2));
    receive(keys::decimalPlaces, qint64(7));
    EXPECT_EQ(changes.count(), 0);
}

} // namespace
} // namespace dropshade
