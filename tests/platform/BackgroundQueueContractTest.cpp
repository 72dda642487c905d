// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/BackgroundQueue.h"

#include "platform/linux/PoolBackgroundQueue.h"
#include "support/ManualBackgroundQueue.h"

#include <QTest>
#include <QThread>

#include <gtest/gtest.h>

#include <atomic>
#include <future>

namespace dropshade {
namespace {

class ManualKind {
public:
    BackgroundQueue& queue() { return m_queue; }
    template <typename Condition>
    bool waitUntil(const Condition& condition) {
        m_queue.workAndLand();
        return condition();
    }
    void waitForTasks() { m_queue.work(); }
    void waitForLandings() { m_queue.land(); }

private:
    ManualBackgroundQueue m_queue;
};

class PoolKind {
public:
    BackgroundQueue& queue() { return *m_queue; }
    template <typename Condition>
    bool waitUntil(const Condition& condition) {
        return QTest::qWaitFor(condition, 5000);
    }
    /// Without the events that make them land.
    void waitForTasks() {
        while (m_running > 0)
            QThread::msleep(1);
    }
    /// Long enough for one to come that must not.
    void waitForLandings() { QTest::qWait(20); }

    std::atomic<int> m_running = 0;

private:
    std::unique_ptr<PoolBackgroundQueue> m_queue = std::make_unique<PoolBackgroundQueue>();
};

template <typename Kind>
class BackgroundQueueContract : public testing::Test {
protected:
    [[nodiscard]] std::unique_ptr<BackgroundWork> run(std::function<void()> task,
                                                      BackgroundQueue::Landing landing) {
        if constexpr (std::is_same_v<Kind, PoolKind>)
            ++m_kind.m_running;
        return m_kind.queue().run([this, task = std::move(task), landing = std::move(landing)](
                                      const std::stop_token&) -> BackgroundQueue::Landing {
            task();
            if constexpr (std::is_same_v<Kind, PoolKind>)
                --m_kind.m_running;
            return landing;
        });
    }

    Kind m_kind;
};

struct KindNames {
    template <typename Kind>
    static std::string GetName(int) {
        return std::is_same_v<Kind, ManualKind> ? "Manual" : "Pool";
    }
};

using Kinds = testing::Types<ManualKind, PoolKind>;
TYPED_TEST_SUITE(BackgroundQueueContract, Kinds, KindNames);

TYPED_TEST(BackgroundQueueContract, ATaskRunsAndThenLandsOnTheMainThread) {
    bool hasRun = false;
    const QThread* landedOn = nullptr;
    const auto work = this->run([&] { hasRun = true; },
                                [&] {
                                    EXPECT_TRUE(hasRun);
                                    landedOn = QThread::currentThread();
                                });
    EXPECT_EQ(landedOn, nullptr);
    EXPECT_TRUE(this->m_kind.waitUntil([&] { return landedOn != nullptr; }));
    EXPECT_EQ(landedOn, QThread::currentThread());
}

TYPED_TEST(BackgroundQueueContract, WhatIsDestroyedAfterItHasRunDoesNotLand) {
    bool hasLanded = false;
    auto work = this->run([] {}, [&] { hasLanded = true; });
    this->m_kind.waitForTasks();
    work.reset();
    this->m_kind.waitForLandings();
    EXPECT_FALSE(hasLanded);
}

TYPED_TEST(BackgroundQueueContract, ALandingMayDestroyItsOwnWork) {
    bool hasLanded = false;
    std::unique_ptr<BackgroundWork> work;
    work = this->run([] {},
                     [&] {
                         work.reset();
                         hasLanded = true;
                     });
    EXPECT_TRUE(this->m_kind.waitUntil([&] { return hasLanded; }));
}

TYPED_TEST(BackgroundQueueContract, ATaskWithoutALandingEndsQuietly) {
    bool hasLanded = false;
    const auto empty = this->run([] {}, nullptr);
    const auto full = this->run([] {}, [&] { hasLanded = true; });
    EXPECT_TRUE(this->m_kind.waitUntil([&] { return hasLanded; }));
}

TYPED_TEST(BackgroundQueueContract, WorkMayOutliveItsQueue) {
    std::unique_ptr<BackgroundWork> work;
    {
        TypeParam other;
        work = other.queue().run([](const std::stop_token&) { return [] {}; });
    }
    work.reset();
}

TYPED_TEST(BackgroundQueueContract, FinishingRunsAndLandsAllThatIsNotCancelled) {
    int landings = 0;
    const auto first = this->run([] {}, [&] { ++landings; });
    const auto second = this->run([] {}, [&] { ++landings; });
    auto cancelled = this->run([] {}, [&] { ++landings; });
    cancelled.reset();
    this->m_kind.queue().finish();
    EXPECT_EQ(landings, 2);
}

TEST(ManualBackgroundQueue, DoesNotRunWhatWasCancelledBefore) {
    ManualBackgroundQueue queue;
    auto work = queue.run([](const std::stop_token&) { return [] {}; });
    EXPECT_EQ(queue.waiting(), 1);
    work.reset();
    EXPECT_EQ(queue.waiting(), 0);
    queue.workAndLand();
    EXPECT_EQ(queue.runs(), 0);
}

TEST(PoolBackgroundQueue, RunsOnAnotherThread) {
    PoolBackgroundQueue queue;
    std::atomic<QThread*> thread = nullptr;
    const auto work = queue.run([&](const std::stop_token&) {
        thread = QThread::currentThread();
        return [] {};
    });
    EXPECT_TRUE(QTest::qWaitFor([&] { return thread != nullptr; }, 5000));
    EXPECT_NE(thread, QThread::currentThread());
}

TEST(PoolBackgroundQueue, TellsARunningTaskThatNobodyWaits) {
    PoolBackgroundQueue queue;
    std::promise<void> begun;
    std::atomic<bool> wasTold = false;
    auto work = queue.run([&](const std::stop_token& token) -> BackgroundQueue::Landing {
        begun.set_value();
        while (!token.stop_requested())
            QThread::yieldCurrentThread();
        wasTold = true;
        return nullptr;
    });
    begun.get_future().wait();
    work.reset();
    EXPECT_TRUE(QTest::qWaitFor([&] { return wasTold.load(); }, 5000));
}

TEST(PoolBackgroundQueue, ItsEndWaitsForWhatIsRunning) {
    std::atomic<bool> hasEnded = false;
    std::unique_ptr<BackgroundWork> work;
    {
        PoolBackgroundQueue queue;
        std::promise<void> begun;
        work = queue.run([&](const std::stop_token&) {
            begun.set_value();
            QThread::msleep(20); // The queue is at its end meanwhile.
            hasEnded = true;
            return [] {};
        });
        begun.get_future().wait();
    }
    EXPECT_TRUE(hasEnded);
}

} // namespace
} // namespace dropshade
