// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Scheduler.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace dropshade {

/// Time that stands still until the test moves it.
class ManualScheduler : public Scheduler {
public:
    [[nodiscard]] std::unique_ptr<ScheduledWork> after(std::chrono::milliseconds delay,
                                                       std::function<void()> action) override {
        const auto due = m_elapsed + std::max(delay, std::chrono::milliseconds(0));
        auto shared = std::make_shared<Action>(std::move(action));
        // Equal moments keep the order of the calls.
        const auto later =
            std::upper_bound(m_queue.begin(), m_queue.end(), due,
                             [](std::chrono::milliseconds moment, const Queued& queued) {
                                 return moment < queued.due;
                             });
        m_queue.insert(later, Queued{due, shared});
        return std::make_unique<Work>(std::move(shared));
    }

    /// The moment set last, plus the time advanced since.
    [[nodiscard]] ReferenceTime now() const override {
        const std::chrono::duration<double> passed = m_elapsed - m_elapsedAtSet;
        return ReferenceTime{m_set.seconds + passed.count()};
    }

    /// Moves the wall clock alone: no work becomes due by it.
    void setNow(ReferenceTime moment) {
        m_set = moment;
        m_elapsedAtSet = m_elapsed;
    }

    /// Lets time pass and runs what becomes due, each at its own moment, also work that other work
    /// scheduled meanwhile.
    void advance(std::chrono::milliseconds time) {
        const auto end = m_elapsed + time;
        while (!m_queue.empty() && m_queue.front().due <= end) {
            const Queued first = m_queue.front();
            m_queue.erase(m_queue.begin());
            if (const auto shared = first.action.lock()) {
                m_elapsed = first.due;
                // Taken out of the work, for the action may destroy that.
                const Action action = std::exchange(*shared, nullptr);
                action();
            }
        }
        m_elapsed = end;
    }
    void advance(int milliseconds) { advance(std::chrono::milliseconds(milliseconds)); }

    /// How many works still wait.
    [[nodiscard]] int pendingCount() const {
        return static_cast<int>(
            std::count_if(m_queue.begin(), m_queue.end(),
                          [](const Queued& queued) { return !queued.action.expired(); }));
    }

private:
    using Action = std::function<void()>;

    /// The work alone owns the action, so that to destroy the work is all that cancelling takes.
    struct Queued {
        std::chrono::milliseconds due;
        std::weak_ptr<Action> action;
    };

    class Work : public ScheduledWork {
    public:
        explicit Work(std::shared_ptr<Action> action) : m_action(std::move(action)) {}

    private:
        std::shared_ptr<Action> m_action;
    };

    std::vector<Queued> m_queue;
    std::chrono::milliseconds m_elapsed{0};
    std::chrono::milliseconds m_elapsedAtSet{0};
    ReferenceTime m_set{800000000.0};
};

} // namespace dropshade
