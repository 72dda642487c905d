// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT

// A replica whose process is killed in the midst of large writes.

#include "platform/linux/ReplicatedKeyValueStore.h"
#include "support/ManualScheduler.h"
#include "support/MemoryDefaults.h"
#include "support/QtPrinters.h"
#include "support/Seed.h"

#include <gtest/gtest.h>

#include <QFileInfo>
#include <QTemporaryDir>

#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <random>

namespace dropshade {
namespace {

constexpr int keyCount = 300;
constexpr qsizetype valueSize = 20'000;

QString keyOf(int number) {
    return QStringLiteral("key%1").arg(number);
}

QByteArray valueOf(int push) {
    return QByteArray::number(push) + QByteArray(valueSize, 'x');
}

/// A replica without a way to anywhere.
class LoneReplica {
public:
    explicit LoneReplica(QString path) : m_path(std::move(path)) {}

    void push(int number) {
        for (int key = 0; key < keyCount; ++key)
            store.setValue(keyOf(key), valueOf(number));
        store.synchronize();
    }
    /// The push that all keys are of; nothing where they are of several.
    [[nodiscard]] std::optional<int> presentPush() const {
        const auto values = store.dictionaryRepresentation();
        if (values.empty())
            return 0;
        const auto first = std::get<QByteArray>(values.begin()->second);
        for (const auto& [key, value] : values) {
            if (std::get<QByteArray>(value) != first)
                return std::nullopt;
        }
        return values.size() == keyCount ? std::optional(first.chopped(valueSize).toInt())
                                         : std::nullopt;
    }

private:
    QString m_path;
    MemoryDefaults m_defaults;
    ManualScheduler m_scheduler;

public:
    ReplicatedKeyValueStore store{m_defaults,
                                  m_scheduler,
                                  {[](const CloudAccount&) { return nullptr; },
                                   [this](const CloudAccount&) { return m_path; }}};
};

class ReplicaKill : public testing::Test {
protected:
    /// Has a process push until it is killed after so many microseconds; the last push that it
    /// had synchronized by then.
    int pushUntilKilled(int first, int microseconds) const {
        std::array<int, 2> ends = {};
        EXPECT_EQ(::pipe(ends.data()), 0);
        const pid_t process = ::fork();
        if (process == 0) {
            LoneReplica replica(path());
            for (int number = first;; ++number) {
                replica.push(number);
                if (::write(ends[1], &number, sizeof number) != sizeof number)
                    ::_exit(1);
            }
        }
        ::close(ends[1]);
        int last = first - 1;
        // From the first push on, or nothing but the start of the process would be tried.
        EXPECT_EQ(::read(ends[0], &last, sizeof last), ssize_t(sizeof last));
        ::usleep(static_cast<useconds_t>(microseconds));
        ::kill(process, SIGKILL);
        ::waitpid(process, nullptr, 0);
        while (::read(ends[0], &last, sizeof last) == ssize_t(sizeof last)) {
        }
        ::close(ends[0]);
        return last;
    }
    [[nodiscard]] QString path() const {
        return m_folder.filePath(QStringLiteral("replica.sqlite"));
    }

    QTemporaryDir m_folder;
};

TEST_F(ReplicaKill, KeepsALargePushWholeAndEachThatWasSynchronized) {
    const std::uint64_t seed = testSeed();
    SCOPED_TRACE(seedTrace(seed));
    std::mt19937_64 random(seed);
    int push = 1;
    for (int round = 0; round < 8; ++round) {
        const int synchronized = pushUntilKilled(push, int(random() % 150'000));
        const auto present = LoneReplica(path()).presentPush();
        ASSERT_TRUE(present);
        EXPECT_GE(*present, synchronized);
        EXPECT_LE(*present, synchronized + 1);
        push = *present + 1;
    }
}

TEST_F(ReplicaKill, ItsLogDoesNotGrowWithoutEnd) {
    LoneReplica replica(path());
    const auto logSize = [this] { return QFileInfo(path() + QStringLiteral("-wal")).size(); };
    replica.push(1);
    replica.push(2);
    const qint64 ofTwo = logSize();
    for (int number = 3; number <= 30; ++number)
        replica.push(number);
    // It holds what is written while an earlier part of it is moved, and that part.
    EXPECT_LT(logSize(), 4 * ofTwo);
    EXPECT_GT(QFileInfo(path()).size(), keyCount * valueSize);
    EXPECT_EQ(replica.presentPush(), 30);
}

} // namespace
} // namespace dropshade
