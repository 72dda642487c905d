// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/BackgroundQueue.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace dropshade {

/// Threads that work when the test says so, and land when it says so.
class ManualBackgroundQueue : public BackgroundQueue {
public:
    [[nodiscard]] std::unique_ptr<BackgroundWork> run(Task task) override {
        auto job = std::make_shared<Job>();
        job->task = std::move(task);
        m_jobs.push_back(job);
        return std::make_unique<Work>(job);
    }

    /// Runs every task that waits and isn't cancelled; none of them lands yet.
    void work() {
        for (const auto& job : std::vector(m_jobs)) {
            if (job->hasRun || job->stop.stop_requested())
                continue;
            job->hasRun = true;
            ++m_runs;
            job->landing = job->task(job->stop.get_token());
        }
    }

    /// Lets what has run land, in the order of the calls, unless it has been cancelled meanwhile.
    void land() {
        for (const auto& job : std::vector(m_jobs)) {
            if (!job->hasRun)
                continue;
            m_jobs.erase(std::find(m_jobs.begin(), m_jobs.end(), job));
            if (job->landing && !job->stop.stop_requested())
                std::exchange(job->landing, nullptr)();
        }
    }

    void workAndLand() {
        work();
        land();
    }

    void finish() override { workAndLand(); }

    /// How many tasks have run so far.
    [[nodiscard]] int runs() const { return m_runs; }

    /// How many tasks were handed over and neither cancelled nor run.
    [[nodiscard]] int waiting() const {
        return static_cast<int>(std::count_if(m_jobs.begin(), m_jobs.end(), [](const auto& job) {
            return !job->hasRun && !job->stop.stop_requested();
        }));
    }

private:
    struct Job {
        Task task;
        Landing landing;
        std::stop_source stop;
        bool hasRun = false;
    };

    class Work : public BackgroundWork {
    public:
        explicit Work(std::shared_ptr<Job> job) : m_job(std::move(job)) {}
        ~Work() override { m_job->stop.request_stop(); }

    private:
        std::shared_ptr<Job> m_job;
    };

    std::vector<std::shared_ptr<Job>> m_jobs;
    int m_runs = 0;
};

} // namespace dropshade
