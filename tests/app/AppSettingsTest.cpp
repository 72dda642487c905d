// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "app/AppSettings.h"

#include "app/SettingsReaders.h"
#include "support/ManualScheduler.h"
#include "support/MemoryDefaults.h"
#include "support/Palettes.h"
#include "support/QtPrinters.h"
#include "support/SignalCount.h"

#include <gtest/gtest.h>

namespace dropshade {
namespace {

QList<PinnedColor> somePins() {
    return {PinnedColor({QUuid::createUuid(), QUuid::createUuid(), QStringLiteral("p"),
                         QUuid::createUuid(), QStringLiteral("s"), QUuid::createUuid(),
                         QStringLiteral("red"), std::nullopt, ReferenceTime{5.25}})};
}

class AppSettingsFields : public testing::Test {
protected:
    MemoryDefaults m_defaults;
    ManualScheduler m_scheduler;
    AppSettings m_settings{m_defaults, m_scheduler};
};

TEST_F(AppSettingsFields, StartAtTheirDefaultsAndWriteNothing) {
    EXPECT_EQ(m_settings.swatchSize(), SwatchSize::s4);
    EXPECT_FALSE(m_settings.closePaletteDialogOnCopy());
    EXPECT_TRUE(m_settings.closeConvertDialogOnCopy());
    EXPECT_EQ(m_settings.contrastAlgorithm(), ContrastAlgorithm::wcag);
    EXPECT_EQ(m_settings.menuBarIconStyle(), MenuBarIconStyle::Picker);
    EXPECT_FALSE(m_settings.iCloudSyncEnabled());
    EXPECT_TRUE(m_settings.pinnedColors().isEmpty());
    EXPECT_TRUE(m_settings.pinnedSwatchIds().isEmpty());
    EXPECT_FALSE(m_settings.hasPendingPins());
    EXPECT_EQ(m_settings.remoteChangeTick(), 0);
    EXPECT_EQ(m_defaults.writeCount(), 0);
    EXPECT_EQ(m_scheduler.pendingCount(), 0);
}

TEST_F(AppSettingsFields, StartAsTheyAreStored) {
    const auto pins = somePins();
    m_defaults.setValue(keys::swatchSizeIndex, qint64(9));
    m_defaults.setValue(keys::closePaletteDialogOnCopy, true);
    m_defaults.setValue(keys::closeConvertDialogOnCopy, false);
    m_defaults.setValue(keys::contrastAlgorithm, QStringLiteral("apca"));
    m_defaults.setValue(keys::menuBarIconStyle, QStringLiteral("palette"));
    m_defaults.setValue(keys::iCloudSyncEnabled, true);
    m_defaults.setValue(keys::pinnedColors, *encodedPins(pins));
    const AppSettings settings(m_defaults, m_scheduler);
    EXPECT_EQ(settings.swatchSize(), SwatchSize::s9);
    EXPECT_TRUE(settings.closePaletteDialogOnCopy());
    EXPECT_FALSE(settings.closeConvertDialogOnCopy());
    EXPECT_EQ(settings.contrastAlgorithm(), ContrastAlgorithm::apca);
    EXPECT_EQ(settings.menuBarIconStyle(), MenuBarIconStyle::Palette);
    EXPECT_TRUE(settings.iCloudSyncEnabled());
    EXPECT_EQ(settings.pinnedColors(), pins);
    EXPECT_EQ(settings.pinnedSwatchIds(), QSet<QUuid>{pins.at(0)->swatchId});
    EXPECT_EQ(settings.pinnedColors().at(0).cachedColor(), SRGBColor(1.0, 0.0, 0.0));
}

TEST_F(AppSettingsFields, KeepUndecodablePinsInTheStoreUntilTheNextWrite) {
    m_defaults.setValue(keys::pinnedColors, QByteArray("junk"));
    const AppSettings settings(m_defaults, m_scheduler);
    EXPECT_TRUE(settings.pinnedColors().isEmpty());
    m_scheduler.advance(1000);
    EXPECT_EQ(m_defaults.read<QByteArray>(keys::pinnedColors), "junk");
}

TEST_F(AppSettingsFields, AreStoredWhenSetAndWakeObserversAfterwards) {
    QObject::connect(&m_settings, &AppSettings::swatchSizeDidChange, &m_settings,
                     [this] { EXPECT_EQ(m_defaults.read<qint64>(keys::swatchSizeIndex), 1); });
    const SignalCount size(m_settings, &AppSettings::swatchSizeDidChange);
    const SignalCount palette(m_settings, &AppSettings::closePaletteDialogOnCopyDidChange);
    const SignalCount convert(m_settings, &AppSettings::closeConvertDialogOnCopyDidChange);
    const SignalCount algorithm(m_settings, &AppSettings::contrastAlgorithmDidChange);
    m_settings.setSwatchSize(SwatchSize::s1);
    m_settings.setClosePaletteDialogOnCopy(true);
    m_settings.setCloseConvertDialogOnCopy(false);
    m_settings.setContrastAlgorithm(ContrastAlgorithm::apca);
    EXPECT_EQ(m_defaults.read<qint64>(keys::swatchSizeIndex), 1);
    EXPECT_EQ(m_defaults.read<bool>(keys::closePaletteDialogOnCopy), true);
    EXPECT_EQ(m_defaults.read<bool>(keys::closeConvertDialogOnCopy), false);
    EXPECT_EQ(m_defaults.read<QString>(keys::contrastAlgorithm), QStringLiteral("apca"));
    EXPECT_EQ(size.count() + palette.count() + convert.count() + algorithm.count(), 4);
}

TEST_F(AppSettingsFields, WakeNobodyWhenSetToAnEqualValue) {
    const SignalCount size(m_settings, &AppSettings::swatchSizeDidChange);
    const SignalCount convert(m_settings, &AppSettings::closeConvertDialogOnCopyDidChange);
    m_settings.setSwatchSize(SwatchSize::s4);
    m_settings.setCloseConvertDialogOnCopy(true);
    EXPECT_EQ(size.count() + convert.count(), 0);
    EXPECT_EQ(m_defaults.read<qint64>(keys::swatchSizeIndex), 4);
}

TEST_F(AppSettingsFields, AnnounceAnIconStyleOnceItIsStored) {
    QString stored;
    QObject::connect(&m_settings, &AppSettings::menuBarIconStyleDidChange, &m_settings, [&] {
        stored = m_defaults.read<QString>(keys::menuBarIconStyle).value_or(QString());
    });
    m_settings.setMenuBarIconStyle(MenuBarIconStyle::Swatch);
    EXPECT_EQ(stored, QStringLiteral("swatch"));
}

TEST_F(AppSettingsFields, PostAndWriteNothingForThePresentIconStyleOrSyncSetting) {
    const SignalCount style(m_settings, &AppSettings::menuBarIconStyleDidChange);
    const SignalCount sync(m_settings, &AppSettings::iCloudSyncEnabledDidChange);
    m_settings.setMenuBarIconStyle(MenuBarIconStyle::Picker);
    m_settings.setICloudSyncEnabled(false);
    EXPECT_EQ(style.count() + sync.count(), 0);
    EXPECT_EQ(m_defaults.writeCount(), 0);
}

TEST_F(AppSettingsFields, AnnounceTheSyncSettingOnceItIsStored) {
    QList<bool> seen;
    QObject::connect(&m_settings, &AppSettings::iCloudSyncEnabledDidChange, &m_settings,
                     [&](bool enabled) {
                         EXPECT_EQ(m_defaults.read<bool>(keys::iCloudSyncEnabled), enabled);
                         seen.append(enabled);
                     });
    m_settings.setICloudSyncEnabled(true);
    m_settings.setICloudSyncEnabled(false);
    EXPECT_EQ(seen, (QList{true, false}));
}

TEST_F(AppSettingsFields, AreReloadedWhereTheyDiffer) {
    const auto pins = somePins();
    m_defaults.setFromAnotherProcess(keys::swatchSizeIndex, qint64(2));
    m_defaults.setFromAnotherProcess(keys::closePaletteDialogOnCopy, true);
    m_defaults.setFromAnotherProcess(keys::closeConvertDialogOnCopy, false);
    m_defaults.setFromAnotherProcess(keys::contrastAlgorithm, QStringLiteral("apca"));
    m_defaults.setFromAnotherProcess(keys::menuBarIconStyle, QStringLiteral("swatch"));
    m_defaults.setFromAnotherProcess(keys::pinnedColors, *encodedPins(pins));
    const SignalCount style(m_settings, &AppSettings::menuBarIconStyleDidChange);
    m_settings.reloadFromDefaults();
    EXPECT_EQ(m_settings.swatchSize(), SwatchSize::s2);
    EXPECT_TRUE(m_settings.closePaletteDialogOnCopy());
    EXPECT_FALSE(m_settings.closeConvertDialogOnCopy());
    EXPECT_EQ(m_settings.contrastAlgorithm(), ContrastAlgorithm::apca);
    EXPECT_EQ(m_settings.menuBarIconStyle(), MenuBarIconStyle::Swatch);
    EXPECT_EQ(m_settings.pinnedColors(), pins);
    EXPECT_EQ(m_settings.pinnedSwatchIds(), QSet<QUuid>{pins.at(0)->swatchId});
    EXPECT_EQ(style.count(), 1);
    EXPECT_EQ(m_settings.remoteChangeTick(), 1);
}

TEST_F(AppSettingsFields, StayQuietThroughAReloadOfEqualValuesButForTheTick) {
    const SignalCount tick(m_settings, &AppSettings::remoteChangeTickDidChange);
    const SignalCount style(m_settings, &AppSettings::menuBarIconStyleDidChange);
    const SignalCount pins(m_settings, &AppSettings::pinnedColorsDidChange);
    m_settings.reloadFromDefaults();
    m_settings.reloadFromDefaults();
    EXPECT_EQ(m_settings.remoteChangeTick(), 2);
    EXPECT_EQ(tick.count(), 2);
    EXPECT_EQ(style.count() + pins.count(), 0);
    EXPECT_EQ(m_defaults.writeCount(), 0);
    EXPECT_FALSE(m_settings.hasPendingPins());
}

TEST_F(AppSettingsFields, LeaveTheSyncSettingToTheMachineAtAReload) {
    m_defaults.setFromAnotherProcess(keys::iCloudSyncEnabled, true);
    m_settings.reloadFromDefaults();
    EXPECT_FALSE(m_settings.iCloudSyncEnabled());
}

TEST_F(AppSettingsFields, AreApartFromThoseOfAnotherMachineInThisProcess) {
    MemoryDefaults otherDefaults;
    ManualScheduler otherScheduler;
    AppSettings other(otherDefaults, otherScheduler);
    const SignalCount style(other, &AppSettings::menuBarIconStyleDidChange);
    m_settings.setMenuBarIconStyle(MenuBarIconStyle::Swatch);
    m_settings.setSwatchSize(SwatchSize::s9);
    m_settings.pinSwatch(PaletteSwatch(QStringLiteral("red")), makePalette("p"),
                         makeScale("s", {}));
    otherScheduler.advance(1000);
    EXPECT_EQ(style.count(), 0);
    EXPECT_EQ(otherDefaults.writeCount(), 0);
    EXPECT_TRUE(other.pinnedColors().isEmpty());
    EXPECT_TRUE(m_settings.hasPendingPins());
}

} // namespace
} // namespace dropshade
