// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT

// When the controller syncs, and what it sends at the end.

#include "app/AppDelegate.h"

#include "app/SettingsReaders.h"
#include "support/FakePlatform.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

namespace dropshade {
namespace {

using Kind = CloudSyncEngine::Status::Kind;

class AppDelegateSync : public testing::Test {
protected:
    AppDelegateSync() { qputenv("HOME", QFile::encodeName(m_home.path())); }

    AppDelegate& launch(bool isEnabled) {
        m_fakes.defaults.setValue(keys::iCloudSyncEnabled, isEnabled);
        m_delegate = std::make_unique<AppDelegate>(std::move(m_fakes.platform));
        m_delegate->applicationDidFinishLaunching();
        m_fakes.scheduler.advance(500);
        return *m_delegate;
    }

    QTemporaryDir m_home;
    FakePlatform m_fakes;
    std::unique_ptr<AppDelegate> m_delegate;
};

TEST_F(AppDelegateSync, StartsWithThePalettesWhereTheSettingIsOn) {
    AppDelegate& delegate = launch(true);
    EXPECT_EQ(delegate.syncEngine().status().kind, Kind::Idle);
    EXPECT_TRUE(m_fakes.cloudStore.isOpen);
    EXPECT_TRUE(m_fakes.cloudStore.value(cloudKeys::order));
}

TEST_F(AppDelegateSync, TouchesNoCloudWhereTheSettingIsOff) {
    AppDelegate& delegate = launch(false);
    delegate.applicationWillTerminate();
    EXPECT_FALSE(m_fakes.cloudStore.isOpen);
    EXPECT_EQ(m_fakes.cloudStore.synchronizeCount, 0);
    EXPECT_EQ(m_fakes.cloudStore.closeCount, 0);
    EXPECT_TRUE(m_fakes.cloudStore.values.empty());
}

TEST_F(AppDelegateSync, FollowsTheSetting) {
    AppDelegate& delegate = launch(false);
    delegate.settings().setICloudSyncEnabled(true);
    EXPECT_EQ(delegate.syncEngine().status().kind, Kind::Idle);
    delegate.settings().setICloudSyncEnabled(false);
    EXPECT_EQ(delegate.syncEngine().status().kind, Kind::Off);
    EXPECT_FALSE(m_fakes.cloudStore.isOpen);
}

TEST_F(AppDelegateSync, StartsAnewWithAnotherAccountAndOnlyIfItIsOn) {
    AppDelegate& delegate = launch(false);
    delegate.syncAccountDidChange();
    EXPECT_FALSE(m_fakes.cloudStore.isOpen);
    delegate.settings().setICloudSyncEnabled(true);
    delegate.syncAccountDidChange();
    EXPECT_EQ(m_fakes.cloudStore.closeCount, 1);
    EXPECT_TRUE(m_fakes.cloudStore.isOpen);
}

TEST_F(AppDelegateSync, SendsWhatWaitsAtTheEndAfterThePalettesAndThePins) {
    AppDelegate& delegate = launch(true);
    m_fakes.scheduler.advance(5000);
    const Palette palette = delegate.paletteStore().palettes().first();
    const PaletteScale& scale = palette.scales().first();
    delegate.settings().pinSwatch(scale.swatches().first(), palette, scale);
    delegate.paletteStore().renamePalette(palette.id(), QStringLiteral("At the end"));
    m_fakes.cloudStore.written.clear();
    delegate.applicationWillTerminate();
    const QStringList& written = m_fakes.cloudStore.written;
    EXPECT_TRUE(written.contains(QStringLiteral("data.pinnedColors")));
    EXPECT_TRUE(written.contains(cloudKeys::palette(palette.id())));
    EXPECT_FALSE(m_fakes.cloudStore.isOpen);
}

TEST_F(AppDelegateSync, TakesTheIconOfAnotherMachineAtOnce) {
    launch(true);
    const auto before = m_fakes.statusItem.icons().size();
    m_fakes.cloudStore.receive(
        {{QStringLiteral("pref.menuBarIconStyle"), QStringLiteral("palette")}});
    EXPECT_EQ(m_fakes.statusItem.icons().size(), before + 1);
}

} // namespace
} // namespace dropshade
