// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/linux/SqliteDefaults.h"

#include "support/DefaultsFolder.h"
#include "support/WriterProcess.h"

#include <gtest/gtest.h>

#include <iostream>
#include <random>
#include <thread>

namespace dropshade {
namespace {

using std::chrono::microseconds;
using std::chrono::seconds;

class SqliteDefaultsProcess : public testing::Test {
protected:
    explicit SqliteDefaultsProcess(DefaultsFolder::Medium medium = DefaultsFolder::Medium::Disk)
        : m_folder(medium) {}

    [[nodiscard]] WriterProcess writer(const QString& prefix, int count) const {
        return WriterProcess(DEFAULTS_WRITER, m_folder.path(), prefix, count);
    }
    /// True as soon as a writer has made the file.
    [[nodiscard]] bool waitForFile() const {
        const auto end = std::chrono::steady_clock::now() + seconds(30);
        while (!QFile::exists(m_folder.path()) && std::chrono::steady_clock::now() < end) {
            std::this_thread::sleep_for(microseconds(100));
        }
        return QFile::exists(m_folder.path());
    }
    /// How many of the first `count` keys do not hold what was written.
    [[nodiscard]] static int lostCount(const UserDefaults& store, const QString& prefix,
                                       int count) {
        int lost = 0;
        for (int number = 0; number < count; ++number) {
            lost += store.value(writtenKey(prefix, number)) == writtenValue(number) ? 0 : 1;
        }
        return lost;
    }

    DefaultsFolder m_folder;
};

TEST_F(SqliteDefaultsProcess, SeesTheWritesOfAnotherAtTheNextRead) {
    const QString prefix = QStringLiteral("key");
    const SqliteDefaults store(m_folder.path());
    EXPECT_FALSE(store.contains(writtenKey(prefix, 0)));
    auto process = writer(prefix, 3);
    for (int number = 0; number < 3; ++number) {
        while (process.storedCount() <= number && !process.hasEnded()) {
            process.collect(microseconds(200));
        }
        ASSERT_GT(process.storedCount(), number);
        EXPECT_EQ(store.value(writtenKey(prefix, number)), writtenValue(number));
    }
}

class SqliteDefaultsTwoProcesses : public SqliteDefaultsProcess {
protected:
    using SqliteDefaultsProcess::SqliteDefaultsProcess;

    /// Runs two writers at once to their end, checks all that they wrote, and gives back how often
    /// one was refused.
    int refusedCountOfTwo(int count) {
        auto first = writer(QStringLiteral("a"), count);
        auto second = writer(QStringLiteral("b"), count);
        first.collect(seconds(60));
        second.collect(seconds(60));
        EXPECT_TRUE(first.hasEnded() && second.hasEnded());
        EXPECT_EQ(first.storedCount() + first.refusedCount(), count);
        EXPECT_EQ(second.storedCount() + second.refusedCount(), count);
        EXPECT_EQ(first.refusedTooSoonCount() + second.refusedTooSoonCount(), 0);
        const SqliteDefaults store(m_folder.path());
        EXPECT_EQ(lostCount(store, QStringLiteral("a"), count), 0);
        EXPECT_EQ(lostCount(store, QStringLiteral("b"), count), 0);
        EXPECT_EQ(store.keys().size(), 2 * count);
        return first.refusedCount() + second.refusedCount();
    }
};

class SqliteDefaultsTwoProcessesInMemory : public SqliteDefaultsTwoProcesses {
protected:
    SqliteDefaultsTwoProcessesInMemory()
        : SqliteDefaultsTwoProcesses(DefaultsFolder::Medium::Memory) {}
};

// A disk that other programs keep busy may make the one writer wait longer than is its due.
TEST_F(SqliteDefaultsTwoProcesses, LoseNothingAndRefuseNoneThatHasNotWaitedItsDue) {
    std::cout << refusedCountOfTwo(300) << " refused writes\n";
}

// A refusal would take a processor that is busy for a fifth of a second, and then not twice in a
// row.
TEST_F(SqliteDefaultsTwoProcessesInMemory, LoseNothingAndHardlyKeepOneAnotherWaiting) {
    const int refused = refusedCountOfTwo(2000);
    EXPECT_LT(refused, 40);
    std::cout << refused << " refused writes\n";
}

TEST_F(SqliteDefaultsProcess, LosesNoReportedWriteWhenKilledAtAnyMoment) {
    const auto seed = std::random_device()();
    SCOPED_TRACE(testing::Message() << "seed " << seed);
    RecordProperty("seed", std::to_string(seed));
    std::mt19937 random(seed);
    int reported = 0;
    for (int round = 0; round < 200; ++round) {
        // Every tenth starts without a file, so that some die while they make it.
        const bool makesFile = round % 10 == 0;
        if (makesFile) {
            QFile::remove(m_folder.path());
        }
        const QString prefix = QStringLiteral("%1-").arg(round);
        auto process = writer(prefix, 1000000);
        // Counted from its first deed: a busy machine may be longer about its start.
        ASSERT_TRUE(makesFile ? waitForFile() : process.collectFirst()) << "round " << round;
        process.collect(microseconds(std::uniform_int_distribution(0, 20000)(random)));
        process.kill();
        const SqliteDefaults store(m_folder.path());
        ASSERT_EQ(lostCount(store, prefix, process.storedCount()), 0) << "round " << round;
        ASSERT_EQ(process.refusedCount(), 0) << "round " << round;
        reported += process.storedCount();
    }
    EXPECT_GE(reported, 180);
    EXPECT_TRUE(m_folder.setAside().isEmpty());
    std::cout << "seed " << seed << ", " << reported << " reported writes\n";
}

} // namespace
} // namespace dropshade
