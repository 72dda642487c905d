// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/BackgroundQueue.h"

#include <deque>

namespace dropshade {

/// Tasks beside the main thread, one after another: each has run before the next begins, and they
/// land in their order. The end of the line drops the tasks that haven't begun, and none lands; no
/// landing may end the line itself.
class BackgroundLine {
public:
    /// `queue` must outlive this object.
    explicit BackgroundLine(BackgroundQueue& queue) : m_queue(queue) {}

    void append(BackgroundQueue::Task task);

    /// Calls `action` as soon as no task is on its way: at once where none is. A later call takes
    /// the place of an earlier one.
    void whenEmpty(std::function<void()> action);
    /// Calls nobody who waits.
    void forgetWaiting() { m_whenEmpty = nullptr; }

    /// Has all tasks run and land before it returns.
    void finish();

private:
    void runFirst();
    void firstDidRun(const BackgroundQueue::Landing& landing);

    BackgroundQueue& m_queue;
    /// The first is running, and empty.
    std::deque<BackgroundQueue::Task> m_tasks;
    std::unique_ptr<BackgroundWork> m_running;
    std::function<void()> m_whenEmpty;
};

} // namespace dropshade
