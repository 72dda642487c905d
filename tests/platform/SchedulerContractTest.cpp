// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/Scheduler.h"

#include "platform/linux/QtScheduler.h"
#include "support/ManualScheduler.h"

#include <QTest>

#include <gtest/gtest.h>

namespace dropshade {
namespace {

using std::chrono::milliseconds;

/// Time passes in the one by order, in the other by waiting for it.
class ManualKind {
public:
    Scheduler& scheduler() { return m_scheduler; }
    double elapsedMilliseconds() const { return (m_scheduler.now().seconds - m_start) * 1000.0; }
    template <typename Condition>
    bool waitUntil(const Condition& condition) {
        for (int passed = 0; passed < 5000 && !condition(); ++passed) {
            m_scheduler.advance(1);
        }
        return condition();
    }

private:
    ManualScheduler m_scheduler;
    double m_start = m_scheduler.now().seconds;
};

class QtKind {
public:
    Scheduler& scheduler() { return m_scheduler; }
    double elapsedMilliseconds() const {
        return std::chrono::duration<double, std::milli>(Clock::now() - m_start).count();
    }
    template <typename Condition>
    bool waitUntil(const Condition& condition) {
        return QTest::qWaitFor(condition, 5000);
    }

private:
    using Clock = std::chrono::steady_clock;

    QtScheduler m_scheduler;
    Clock::time_point m_start = Clock::now();
};

template <typename Kind>
class SchedulerContract : public testing::Test {
protected:
    using Work = std::unique_ptr<ScheduledWork>;

    [[nodiscard]] Work after(int delay, std::function<void()> action) {
        return m_kind.scheduler().after(milliseconds(delay), std::move(action));
    }
    [[nodiscard]] Work note(int delay, int number) {
        return after(delay, [this, number] { m_notes.push_back(number); });
    }
    /// Lets time pass until work of that delay, scheduled now, has run.
    void pass(int delay) {
        bool isOver = false;
        const Work end = after(delay, [&isOver] { isOver = true; });
        EXPECT_TRUE(m_kind.waitUntil([&isOver] { return isOver; }));
    }

    Kind m_kind;
    std::vector<int> m_notes;
};

struct KindNames {
    template <typename Kind>
    static std::string GetName(int) {
        return std::is_same_v<Kind, ManualKind> ? "Manual" : "Qt";
    }
};

using Kinds = testing::Types<ManualKind, QtKind>;
TYPED_TEST_SUITE(SchedulerContract, Kinds, KindNames);

TYPED_TEST(SchedulerContract, RunsTheActionOnceAndNotWithinTheCall) {
    const auto work = this->note(0, 1);
    EXPECT_TRUE(this->m_notes.empty());
    this->pass(20);
    EXPECT_EQ(this->m_notes, std::vector{1});
}

TYPED_TEST(SchedulerContract, RunsNoSoonerThanTheDelay) {
    for (const int delay : {1, 7, 30}) {
        const double start = this->m_kind.elapsedMilliseconds();
        this->pass(delay);
        EXPECT_GE(this->m_kind.elapsedMilliseconds() - start, delay - 1e-3);
    }
}

TYPED_TEST(SchedulerContract, RunsInTheOrderOfTheMoments) {
    const auto late = this->note(40, 2);
    const auto soon = this->note(1, 1);
    this->pass(60);
    EXPECT_EQ(this->m_notes, (std::vector{1, 2}));
}

TYPED_TEST(SchedulerContract, RunsEqualDelaysInTheOrderOfTheCalls) {
    for (const int delay : {0, 5}) {
        this->m_notes.clear();
        std::vector<std::unique_ptr<ScheduledWork>> works;
        std::vector<int> expected;
        for (int number = 0; number < 50; ++number) {
            works.push_back(this->note(delay, number));
            expected.push_back(number);
        }
        this->pass(delay);
        EXPECT_EQ(this->m_notes, expected);
    }
}

TYPED_TEST(SchedulerContract, TakesANegativeDelayForNone) {
    const auto work = this->note(-5, 1);
    EXPECT_TRUE(this->m_notes.empty());
    this->pass(5);
    EXPECT_EQ(this->m_notes, std::vector{1});
}

TYPED_TEST(SchedulerContract, ForgetsWorkThatIsDestroyed) {
    auto work = this->note(1, 1);
    work.reset();
    this->pass(20);
    EXPECT_TRUE(this->m_notes.empty());
}

TYPED_TEST(SchedulerContract, ReplacesTheOlderWorkInTheSameField) {
    auto work = this->note(5, 1);
    work = this->note(5, 2);
    this->pass(30);
    EXPECT_EQ(this->m_notes, std::vector{2});
}

TYPED_TEST(SchedulerContract, LetsAnActionDestroyItsOwnWork) {
    std::unique_ptr<ScheduledWork> work;
    auto held = std::make_shared<int>(1);
    work = this->after(1, [this, &work, held] {
        work.reset();
        this->m_notes.push_back(*held);
    });
    this->pass(20);
    EXPECT_EQ(this->m_notes, std::vector{1});
    EXPECT_EQ(held.use_count(), 1);
}

TYPED_TEST(SchedulerContract, LetsAnActionReplaceItsOwnWork) {
    std::unique_ptr<ScheduledWork> work;
    work = this->after(1, [this, &work] {
        this->m_notes.push_back(1);
        work = this->note(1, 2);
    });
    // The second moment comes after the first has run, which may be late.
    this->pass(1);
    this->pass(1);
    EXPECT_EQ(this->m_notes, (std::vector{1, 2}));
}

TYPED_TEST(SchedulerContract, LetsAnActionDestroyOtherWorkThatIsDue) {
    std::unique_ptr<ScheduledWork> second;
    const auto first = this->after(1, [&second] { second.reset(); });
    second = this->note(1, 2);
    this->pass(20);
    EXPECT_TRUE(this->m_notes.empty());
}

TYPED_TEST(SchedulerContract, LetsGoOfTheActionOnceItHasRun) {
    auto held = std::make_shared<int>();
    const auto work = this->after(1, [held] {});
    this->pass(20);
    EXPECT_EQ(held.use_count(), 1);
}

TYPED_TEST(SchedulerContract, TellsMomentsThatGoOn) {
    const ReferenceTime before = this->m_kind.scheduler().now();
    this->pass(20);
    EXPECT_GE(this->m_kind.scheduler().now().seconds - before.seconds, 0.019);
}

TEST(QtScheduler, TellsTheWallClockToTheMicrosecond) {
    const auto unixSeconds = [] {
        const auto now = std::chrono::system_clock::now().time_since_epoch();
        return std::chrono::duration<double>(now).count();
    };
    const double before = unixSeconds();
    const double now = QtScheduler().now().seconds + unixSecondsOfReference;
    EXPECT_GE(now, before - 2e-6);
    EXPECT_LE(now, unixSeconds() + 2e-6);
}

TEST(QtScheduler, RunsWorkOnceThoughTheActionRunsAnEventLoop) {
    QtScheduler scheduler;
    int runs = 0;
    bool isOver = false;
    const auto work = scheduler.after(milliseconds(0), [&] {
        ++runs;
        EXPECT_TRUE(QTest::qWaitFor([&isOver] { return isOver; }, 5000));
    });
    const auto end = scheduler.after(milliseconds(20), [&isOver] { isOver = true; });
    EXPECT_TRUE(QTest::qWaitFor([&] { return runs > 0 && isOver; }, 5000));
    EXPECT_EQ(runs, 1);
}

TEST(ManualScheduler, RunsWorkThatWorkScheduledWithinOneAdvance) {
    ManualScheduler scheduler;
    std::vector<double> moments;
    std::unique_ptr<ScheduledWork> inner;
    scheduler.setNow(ReferenceTime{100.0});
    const auto note = [&] { moments.push_back(scheduler.now().seconds); };
    const auto outer = scheduler.after(milliseconds(250), [&] {
        note();
        inner = scheduler.after(milliseconds(500), note);
    });
    scheduler.advance(1000);
    EXPECT_EQ(moments, (std::vector{100.25, 100.75}));
    EXPECT_EQ(scheduler.now(), ReferenceTime{101.0});
    EXPECT_EQ(scheduler.pendingCount(), 0);
}

TEST(ManualScheduler, KeepsTheWallClockApartFromDelays) {
    ManualScheduler scheduler;
    int runs = 0;
    const auto work = scheduler.after(milliseconds(10), [&runs] { ++runs; });
    scheduler.setNow(ReferenceTime{1e9 + 0.1});
    EXPECT_EQ(scheduler.now().seconds, 1e9 + 0.1);
    scheduler.advance(9);
    EXPECT_EQ(runs, 0);
    EXPECT_EQ(scheduler.pendingCount(), 1);
    scheduler.advance(1);
    EXPECT_EQ(runs, 1);
}

} // namespace
} // namespace dropshade
