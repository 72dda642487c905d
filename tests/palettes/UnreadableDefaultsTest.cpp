// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT

// What the user has stored outlives a time in which another process keeps everybody from reading
// it, whatever the program does meanwhile.

#include "app/ColorCopier.h"
#include "app/LegacyPreferences.h"
#include "app/RecentColor.h"
#include "app/SettingsReaders.h"
#include "palettes/PaletteJson.h"
#include "palettes/UserPaletteStore.h"
#include "platform/linux/SqliteDefaults.h"
#include "support/DefaultsFolder.h"
#include "support/DefaultsLock.h"
#include "support/ManualScheduler.h"
#include "support/Palettes.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

namespace dropshade {
namespace {

class UnreadableDefaults : public testing::Test {
protected:
    void TearDown() override { EXPECT_TRUE(m_folder.setAside().isEmpty()); }

    /// Writes as a process before this one did, or as one after it finds.
    [[nodiscard]] SqliteDefaults elsewhere() const { return SqliteDefaults(m_path); }
    void lock() {
        // What this process has open keeps others from taking the file, but not from putting
        // another in its place, as a program does that brings back a copy.
        const QString copy = m_path + QStringLiteral(".copy");
        ASSERT_TRUE(QFile::copy(m_path, copy));
        for (const auto* part : {"", "-wal", "-shm"})
            ASSERT_TRUE(QFile::remove(m_path + QLatin1String(part)));
        ASSERT_TRUE(QFile::rename(copy, m_path));
        m_lock = std::make_unique<DefaultsLock>(DEFAULTS_LOCKER, m_path);
        ASSERT_TRUE(m_lock->isHeld());
    }
    /// The next write takes along what was refused.
    void unlock(SqliteDefaults& defaults) {
        m_lock.reset();
        EXPECT_TRUE(defaults.setValue(QStringLiteral("next"), true));
    }

    DefaultsFolder m_folder;
    const QString m_path = m_folder.path();
    std::unique_ptr<DefaultsLock> m_lock;
};

TEST_F(UnreadableDefaults, KeepTheRecentColorsBehindThoseThatWereRecorded) {
    QList<RecentColor> before;
    {
        auto defaults = elsewhere();
        setRecentColorsLimit(defaults, 20);
        for (int index = 0; index < 19; ++index)
            recordRecentColor(defaults, SRGBColor(index / 255.0, 0.0, 0.0));
        before = loadRecentColors(defaults);
    }
    lock();
    SqliteDefaults defaults(m_path);
    recordRecentColor(defaults, SRGBColor(0.0, 1.0, 0.0));
    recordRecentColor(defaults, SRGBColor(0.0, 0.0, 1.0));
    EXPECT_EQ(loadRecentColors(defaults).size(), 2) << "the menu has the new ones at once";
    unlock(defaults);
    const auto after = loadRecentColors(elsewhere());
    EXPECT_EQ(after, loadRecentColors(defaults));
    ASSERT_EQ(after.size(), 21) << "the limit wasn't known; the next color cuts";
    EXPECT_EQ(after.at(0).blue, 1.0);
    EXPECT_EQ(after.at(1).green, 1.0);
    EXPECT_EQ(after.mid(2), before);
    recordRecentColor(defaults, SRGBColor());
    EXPECT_EQ(loadRecentColors(elsewhere()).size(), 20);
}

TEST_F(UnreadableDefaults, CutTheRecentColorsToALimitThatWasSet) {
    {
        auto defaults = elsewhere();
        for (int index = 0; index < 8; ++index)
            recordRecentColor(defaults, SRGBColor(index / 255.0, 0.0, 0.0));
    }
    lock();
    SqliteDefaults defaults(m_path);
    setRecentColorsLimit(defaults, 5);
    unlock(defaults);
    const auto after = loadRecentColors(elsewhere());
    ASSERT_EQ(after.size(), 5);
    EXPECT_EQ(after.first().red, 7 / 255.0);
}

TEST_F(UnreadableDefaults, CountOnFromWhatWasCounted) {
    ASSERT_TRUE(elsewhere().setValue(keys::totalChecksCount, qint64(5000)));
    lock();
    SqliteDefaults defaults(m_path);
    countCheck(defaults);
    countCheck(defaults);
    unlock(defaults);
    EXPECT_EQ(elsewhere().read<qint64>(keys::totalChecksCount), 5002);
}

TEST_F(UnreadableDefaults, TakeNoFormerPreferencesOverWhatIsSet) {
    QFile file(m_folder.folder().filePath(QStringLiteral("former.plist")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("<plist version=\"1.0\"><dict><key>colorFormat</key><string>cssHSL</string>"
               "<key>useLowercase</key><true/></dict></plist>");
    file.close();
    ASSERT_TRUE(elsewhere().setValue(keys::colorFormat, QStringLiteral("hexa")));
    lock();
    {
        SqliteDefaults defaults(m_path);
        importLegacyPreferences(defaults, file.fileName());
        unlock(defaults);
    }
    EXPECT_EQ(colorFormat(elsewhere()), ColorFormat::hexa);
    EXPECT_FALSE(elsewhere().contains(keys::useLowercase));
    auto next = elsewhere();
    importLegacyPreferences(next, file.fileName());
    EXPECT_EQ(colorFormat(next), ColorFormat::hexa);
    EXPECT_TRUE(useLowercase(next)) << "the next start makes up for it";
}

TEST_F(UnreadableDefaults, KeepTheSettingsThroughAReload) {
    ManualScheduler scheduler;
    {
        auto defaults = elsewhere();
        AppSettings settings(defaults, scheduler);
        settings.setSwatchSize(SwatchSize::s8);
        settings.setMenuBarIconStyle(MenuBarIconStyle::Palette);
        settings.setClosePaletteDialogOnCopy(true);
        const PaletteScale scale = makeScale("Scale", {"red"});
        settings.pinSwatch(scale.swatches().first(), makePalette("Sea", {scale}), scale);
        settings.flushPendingPins();
    }
    SqliteDefaults defaults(m_path);
    AppSettings settings(defaults, scheduler);
    lock();
    settings.reloadFromDefaults();
    EXPECT_EQ(settings.swatchSize(), SwatchSize::s8);
    EXPECT_EQ(settings.pinnedColors().size(), 1);
    scheduler.advance(250);
    unlock(defaults);
    const AppSettings next(defaults, scheduler);
    EXPECT_EQ(next.swatchSize(), SwatchSize::s8);
    EXPECT_EQ(next.menuBarIconStyle(), MenuBarIconStyle::Palette);
    EXPECT_TRUE(next.closePaletteDialogOnCopy());
    EXPECT_EQ(next.pinnedColors().size(), 1);
}

/// A library of "Sea" and "Land", of which the first is collapsed and a favourite.
class UnreadableLibrary : public UnreadableDefaults {
protected:
    UnreadableLibrary() {
        auto defaults = elsewhere();
        AppSettings settings(defaults, m_scheduler);
        defaults.setValue(keys::userPalettes, *encodedPalettes({m_sea, m_land}));
        UserPaletteStore store(defaults, m_scheduler, settings, m_presets);
        store.setCollapsed(m_land.id(), false);
        settings.pinSwatch(m_scale.swatches().first(), m_sea, m_scale);
        settings.flushPendingPins();
    }

    ManualScheduler m_scheduler;
    PalettePresets m_presets{m_scheduler};
    PaletteScale m_scale = makeScale("Scale", {"red"});
    Palette m_sea = makePalette("Sea", {m_scale});
    Palette m_land = makePalette("Land");
};

TEST_F(UnreadableLibrary, KeepsWhichPalettesAreCollapsed) {
    lock();
    SqliteDefaults defaults(m_path);
    AppSettings settings(defaults, m_scheduler);
    UserPaletteStore store(defaults, m_scheduler, settings, m_presets);
    const QUuid seed = store.palettes().first().id();
    EXPECT_TRUE(store.collapsedPaletteIds().contains(seed));
    store.setCollapsed(seed, false);
    unlock(defaults);
    EXPECT_TRUE(store.collapsedPaletteIds().contains(m_sea.id()));
    EXPECT_FALSE(store.collapsedPaletteIds().contains(m_land.id()));
    EXPECT_FALSE(store.collapsedPaletteIds().contains(seed));
}

// The settings are read half a second before the palettes.
TEST_F(UnreadableLibrary, KeepsFavoritesThatCouldBeReadBefore) {
    SqliteDefaults defaults(m_path);
    AppSettings settings(defaults, m_scheduler);
    ASSERT_EQ(settings.pinnedColors().size(), 1);
    lock();
    UserPaletteStore store(defaults, m_scheduler, settings, m_presets);
    EXPECT_EQ(store.palettes().size(), 3);
    m_scheduler.advance(1000);
    EXPECT_EQ(settings.pinnedColors().size(), 1);
    unlock(defaults);
    m_scheduler.advance(30'000);
    ASSERT_EQ(store.palettes().size(), 2);
    EXPECT_EQ(store.palettes().first().name(), QStringLiteral("Sea"));
    EXPECT_EQ(settings.pinnedColors().size(), 1);
    const AppSettings next(defaults, m_scheduler);
    EXPECT_EQ(next.pinnedColors(), settings.pinnedColors());
}

TEST_F(UnreadableLibrary, IsKeptByAProgramThatEndsBeforeItCanBeRead) {
    {
        SqliteDefaults defaults(m_path);
        AppSettings settings(defaults, m_scheduler);
        lock();
        UserPaletteStore store(defaults, m_scheduler, settings, m_presets);
        store.flushPendingSave();
        settings.flushPendingPins();
        countCheck(defaults);
        m_lock.reset();
    }
    auto defaults = elsewhere();
    EXPECT_EQ(defaults.read<qint64>(keys::totalChecksCount), 1);
    AppSettings settings(defaults, m_scheduler);
    EXPECT_EQ(settings.pinnedColors().size(), 1);
    const UserPaletteStore store(defaults, m_scheduler, settings, m_presets);
    EXPECT_TRUE(areSame(store.palettes(), {m_sea, m_land}));
}

} // namespace
} // namespace dropshade
