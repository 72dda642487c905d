// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT

// That an export leaves the main thread free, with real threads and time.
#include "interchange/PaletteExporter.h"
#include "platform/linux/PoolBackgroundQueue.h"
#include "platform/linux/QtScheduler.h"
#include "support/FakeAlerts.h"
#include "support/FakeFilePanels.h"
#include "support/LargeLibrary.h"
#include "support/LongestTurn.h"

#include <QEventLoop>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

namespace dropshade {
namespace {

class PaletteExportTurn : public testing::TestWithParam<PaletteExportFormat> {};

TEST_P(PaletteExportTurn, OfALargePaletteIsShorterThan50Milliseconds) {
    const QTemporaryDir folder;
    QtScheduler scheduler;
    PoolBackgroundQueue queue;
    FakeFilePanels panels;
    FakeAlerts alerts;
    PaletteExporter exporter(scheduler, queue, panels, alerts);
    exporter.exportPalette(largeLibrary(1).first(), GetParam());
    ASSERT_TRUE(QTest::qWaitFor([&] { return !panels.panels().isEmpty(); }));
    QEventLoop loop;
    const LongestTurn longest;
    const auto answer = scheduler.after(std::chrono::milliseconds(0), [&] {
        panels.choose(folder.filePath(QStringLiteral("a")));
        exporter.whenWritten([&loop] { loop.quit(); });
    });
    const auto bound = scheduler.after(std::chrono::minutes(1), [&loop] { loop.quit(); });
    loop.exec();
    EXPECT_LT(longest.milliseconds(), 50.0);
    RecordProperty("milliseconds", std::to_string(longest.milliseconds()));
    EXPECT_TRUE(QFile::exists(folder.filePath(QStringLiteral("a"))));
}

INSTANTIATE_TEST_SUITE_P(Formats, PaletteExportTurn, testing::ValuesIn(exportMenuOrder()),
                         [](const auto& format) {
                             return fileExtension(format.param).toStdString();
                         });

} // namespace
} // namespace dropshade
