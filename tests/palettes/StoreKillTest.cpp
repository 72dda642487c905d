// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "palettes/UserPaletteStore.h"

#include "platform/linux/QtScheduler.h"
#include "platform/linux/SqliteDefaults.h"
#include "support/QtPrinters.h"
#include "support/Seed.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QProcess>
#include <QTemporaryDir>

#include <random>

namespace dropshade {
namespace {

constexpr int patience = 30000;

/// What a fresh start of the program finds.
struct Restart {
    explicit Restart(const QString& path) : defaults(path) {}

    SqliteDefaults defaults;
    QtScheduler scheduler;
    AppSettings settings{defaults, scheduler};
    PalettePresets presets{scheduler};
    UserPaletteStore store{defaults, scheduler, settings, presets};
};

class KilledStore : public testing::Test {
protected:
    void start(const char* mode) {
        m_process.start(QStringLiteral(STORE_WRITER), {m_path, QString::fromLatin1(mode)});
        ASSERT_TRUE(m_process.waitForStarted(patience));
    }
    /// The next number that the program says has been saved.
    int nextSaved() {
        while (!m_process.canReadLine()) {
            if (!m_process.waitForReadyRead(patience))
                return -1;
        }
        return m_process.readLine().trimmed().toInt();
    }
    /// Kills the program; the last number that it had said.
    int kill(int lastSaved) {
        m_process.kill();
        m_process.waitForFinished(patience);
        EXPECT_EQ(m_process.exitStatus(), QProcess::CrashExit);
        while (m_process.canReadLine())
            lastSaved = m_process.readLine().trimmed().toInt();
        return lastSaved;
    }

    int m_argumentCount = 0;
    QCoreApplication m_application{m_argumentCount, nullptr};
    QTemporaryDir m_folder;
    QString m_path = m_folder.filePath(QStringLiteral("defaults.sqlite"));
    QProcess m_process;
};

TEST_F(KilledStore, LosesNothingThatWasSaved) {
    const auto seed = testSeed();
    SCOPED_TRACE(seedTrace(seed));
    std::mt19937_64 random(seed);
    for (int round = 0; round < 8; ++round) {
        start("flush");
        int saved = 0;
        for (unsigned count = 1 + random() % 40; count > 0; --count)
            saved = nextSaved();
        ASSERT_GT(saved, 0);
        saved = kill(saved);
        const Restart restart(m_path);
        ASSERT_EQ(restart.store.palettes().size(), 3);
        // The kill may have come between a save and the word of it.
        const int found = restart.store.palettes().first().name().toInt();
        EXPECT_TRUE(found == saved || found == saved + 1) << found << " after " << saved;
        ASSERT_EQ(restart.settings.pinnedColors().size(), 1);
        const int pinned = restart.settings.pinnedColors().first()->paletteName.toInt();
        EXPECT_TRUE(pinned == saved || pinned == saved + 1) << pinned << " after " << saved;
    }
}

TEST_F(KilledStore, KeepsABurstOfEditsOnceItIsSaved) {
    start("burst");
    ASSERT_EQ(nextSaved(), 1000);
    kill(0);
    const Restart restart(m_path);
    const Palette palette = restart.store.palettes().first();
    EXPECT_EQ(palette.name(), QStringLiteral("Mantine"));
    const auto& swatches = palette.scales().first().swatches();
    EXPECT_EQ(swatches.size(), 1010);
    EXPECT_EQ(swatches.last().value(), QStringLiteral("1000"));
    EXPECT_FALSE(restart.store.hasPendingSave());
}

} // namespace
} // namespace dropshade
