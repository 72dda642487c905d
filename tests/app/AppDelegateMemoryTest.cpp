// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT

// What the controller makes the program remember.

#include "app/AppDelegate.h"

#include "app/LegacyPreferences.h"
#include "app/RecentColor.h"
#include "app/SettingsReaders.h"
#include "support/FakePlatform.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <limits>

namespace dropshade {
namespace {

const SRGBColor pink(1.0, 0.0, 128.0 / 255.0, 0.5);

class AppDelegateMemory : public testing::Test {
protected:
    AppDelegateMemory() { qputenv("HOME", QFile::encodeName(m_home.path())); }

    AppDelegate& launch() {
        m_delegate = std::make_unique<AppDelegate>(std::move(m_fakes.platform));
        m_delegate->applicationDidFinishLaunching();
        return *m_delegate;
    }
    [[nodiscard]] QList<RecentColor> recents() const { return loadRecentColors(m_fakes.defaults); }

    QTemporaryDir m_home;
    FakePlatform m_fakes;
    std::unique_ptr<AppDelegate> m_delegate;
};

TEST_F(AppDelegateMemory, TakesOverFormerPreferencesBeforeAnySettingIsRead) {
    const QString path = legacyPreferencesPath(m_home.path());
    ASSERT_TRUE(QDir().mkpath(QFileInfo(path).path()));
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("<plist version=\"1.0\"><dict><key>menuBarIconStyle</key><string>swatch</string>"
               "<key>iCloudSyncEnabled</key><true/></dict></plist>");
    file.close();
    const AppSettings& settings = launch().settings();
    EXPECT_EQ(settings.menuBarIconStyle(), MenuBarIconStyle::Swatch);
    EXPECT_TRUE(settings.iCloudSyncEnabled());
    EXPECT_EQ(m_fakes.defaults.read<bool>(keys::didImportLegacyContainerPrefs), true);
}

TEST_F(AppDelegateMemory, RemembersTheColorsThatItCopies) {
    AppDelegate& delegate = launch();
    delegate.startPick();
    m_fakes.screenSampler.pick(pink);
    delegate.copyColor(SRGBColor(0.0, 1.0, 0.0), ColorFormat::cssRGB);
    ASSERT_EQ(recents().size(), 2);
    EXPECT_EQ(recents().at(0).color(), SRGBColor(0.0, 1.0, 0.0));
    EXPECT_EQ(recents().at(1).color(), pink);
}

TEST_F(AppDelegateMemory, RemembersNoColorOfACancelledSample) {
    launch().startPick();
    m_fakes.screenSampler.cancel();
    EXPECT_FALSE(m_fakes.defaults.contains(keys::recentColors));
}

TEST_F(AppDelegateMemory, CopiesCountsAndIsHeardButRemembersNothingWhereRecentColorsAreOff) {
    m_fakes.defaults.setValue(keys::showRecentColors, false);
    launch().copyColor(pink);
    EXPECT_FALSE(m_fakes.defaults.contains(keys::recentColors));
    EXPECT_EQ(m_fakes.pasteboard.text(), QStringLiteral("#FF0080"));
    EXPECT_EQ(m_fakes.defaults.read<qint64>(keys::totalChecksCount), 1);
    EXPECT_EQ(m_fakes.soundPlayer.played().size(), 1);
}

TEST_F(AppDelegateMemory, CopiesCountsAndIsHeardButRemembersNothingWithALimitOfZero) {
    m_fakes.defaults.setValue(keys::recentColorsLimit, qint64(0));
    launch().copyColor(pink);
    EXPECT_FALSE(m_fakes.defaults.contains(keys::recentColors));
    EXPECT_EQ(m_fakes.pasteboard.text(), QStringLiteral("#FF0080"));
    EXPECT_EQ(m_fakes.defaults.read<qint64>(keys::totalChecksCount), 1);
    EXPECT_EQ(m_fakes.soundPlayer.played().size(), 1);
}

TEST_F(AppDelegateMemory, CountsCopiesUpToTheLargestNumberAndNoFurther) {
    constexpr qint64 largest = std::numeric_limits<qint64>::max();
    m_fakes.defaults.setValue(keys::totalChecksCount, largest - 1);
    AppDelegate& delegate = launch();
    for (int copies = 0; copies < 2; ++copies) {
        delegate.copyColor(pink);
        EXPECT_EQ(m_fakes.defaults.read<qint64>(keys::totalChecksCount), largest);
    }
}

TEST_F(AppDelegateMemory, CountsFromTheBeginningWhereTheCountIsNoNumber) {
    m_fakes.defaults.setValue(keys::totalChecksCount, QStringLiteral("many"));
    launch().copyColor(pink);
    EXPECT_EQ(m_fakes.defaults.read<qint64>(keys::totalChecksCount), 1);
}

TEST_F(AppDelegateMemory, LoadsThePalettesAfterTheStatusItemIsUp) {
    launch();
    EXPECT_FALSE(m_fakes.statusItem.icons().empty());
    EXPECT_FALSE(m_fakes.defaults.contains(keys::collapsedPaletteIds));
    m_fakes.scheduler.advance(500);
    EXPECT_TRUE(m_fakes.defaults.contains(keys::collapsedPaletteIds));
}

TEST_F(AppDelegateMemory, LoadsThePalettesAtOnceForWhoeverAsks) {
    AppDelegate& delegate = launch();
    UserPaletteStore& store = delegate.paletteStore();
    EXPECT_EQ(store.palettes().size(), 3);
    m_fakes.scheduler.advance(500);
    EXPECT_EQ(&delegate.paletteStore(), &store);
}

TEST_F(AppDelegateMemory, WritesWhatWaitsAtTheEndThePalettesBeforeThePins) {
    AppDelegate& delegate = launch();
    const Palette palette = delegate.paletteStore().palettes().first();
    const PaletteScale& scale = palette.scales().first();
    delegate.settings().pinSwatch(scale.swatches().first(), palette, scale);
    QStringList written;
    QObject::connect(&m_fakes.defaults, &UserDefaults::didChange,
                     [&](const QString& key) { written.append(key); });
    delegate.applicationWillTerminate();
    EXPECT_EQ(written, (QStringList{keys::userPalettes, keys::pinnedColors}));
    EXPECT_EQ(m_fakes.scheduler.pendingCount(), 0);
}

TEST_F(AppDelegateMemory, WaitsAtTheEndForAnotherProcessThatHoldsUpTheLastWrites) {
    AppDelegate& delegate = launch();
    const Palette palette = delegate.paletteStore().palettes().first();
    const PaletteScale& scale = palette.scales().first();
    delegate.settings().pinSwatch(scale.swatches().first(), palette, scale);
    delegate.paletteStore().renamePalette(palette.id(), QStringLiteral("At the end"));
    m_fakes.defaults.setHeldUp();
    delegate.applicationWillTerminate();
    EXPECT_TRUE(m_fakes.defaults.contains(keys::pinnedColors));
    EXPECT_TRUE(m_fakes.defaults.read<QByteArray>(keys::userPalettes)
                    .value_or(QByteArray())
                    .contains("At the end"));
}

TEST_F(AppDelegateMemory, WritesNothingAtTheEndWhereNothingWaits) {
    AppDelegate& delegate = launch();
    const int before = m_fakes.defaults.writeCount();
    delegate.applicationWillTerminate();
    m_fakes.scheduler.advance(1000);
    EXPECT_EQ(m_fakes.defaults.writeCount(), before);
}

} // namespace
} // namespace dropshade
