// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT

// A folder shared by two processes, one of which is killed in the midst of its writes.

#include "support/CloudMember.h"
#include "support/QtPrinters.h"
#include "support/Seed.h"
#include "support/WriterProcess.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

namespace dropshade {
namespace {

const QString prefix = QStringLiteral("key");

class SharedFolderProcess : public testing::Test {
protected:
    [[nodiscard]] QString path(const char* name) const {
        return m_base.filePath(QString::fromLatin1(name));
    }
    /// Runs the event loop while the writer works.
    static void watch(WriterProcess& writer, int milliseconds) {
        QElapsedTimer timer;
        timer.start();
        while (!writer.hasEnded() && timer.elapsed() < milliseconds) {
            writer.collect(std::chrono::milliseconds(2));
            QCoreApplication::processEvents();
        }
    }
    static bool seesAll(FolderMember& member, int count) {
        return QTest::qWaitFor(
            [&] {
                for (int number = 0; number < count; ++number) {
                    if (member.store().value(writtenKey(prefix, number)) != writtenValue(number))
                        return false;
                }
                return true;
            },
            20'000);
    }

    QTemporaryDir m_base;
};

TEST_F(SharedFolderProcess, EachSeesAllThatTheOtherWrites) {
    FolderMember here(path("shared"), path("here.sqlite"));
    WriterProcess writer(REPLICA_WRITER, m_base.path(), prefix, 60);
    for (int number = 0; number < 30; ++number) {
        here.write(writtenKey(QStringLiteral("here"), number), writtenValue(number));
        watch(writer, 5);
    }
    watch(writer, 20'000);
    EXPECT_EQ(writer.storedCount(), 60);
    EXPECT_TRUE(seesAll(here, 60));
    EXPECT_TRUE(here.hasSentAll());
    FolderMember third(path("shared"), path("third.sqlite"));
    EXPECT_TRUE(seesAll(third, 60));
    EXPECT_TRUE(third.sees(writtenKey(QStringLiteral("here"), 29), writtenValue(29)));
}

TEST_F(SharedFolderProcess, AKillLosesNothingThatWasSynchronized) {
    const std::uint64_t seed = testSeed();
    SCOPED_TRACE(seedTrace(seed));
    std::mt19937_64 random(seed);
    int written = 0;
    FolderMember here(path("shared"), path("here.sqlite"));
    for (int round = 0; round < 4; ++round) {
        WriterProcess writer(REPLICA_WRITER, m_base.path(), prefix, 100'000);
        ASSERT_TRUE(writer.collectFirst());
        watch(writer, int(random() % 150));
        writer.kill();
        written = std::max(written, writer.storedCount());
    }
    ASSERT_GT(written, 0);
    // The writer's replica has all of it; opened again, it sends what had not gone out.
    FolderMember again(path("shared"), path("writer.sqlite"));
    EXPECT_TRUE(seesAll(again, written));
    EXPECT_TRUE(again.hasSentAll());
    EXPECT_TRUE(seesAll(here, written));
}

} // namespace
} // namespace dropshade
