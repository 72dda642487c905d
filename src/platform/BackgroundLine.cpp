// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/BackgroundLine.h"

#include <utility>

namespace dropshade {

void BackgroundLine::append(BackgroundQueue::Task task) {
    m_tasks.push_back(std::move(task));
    if (m_tasks.size() == 1)
        runFirst();
}

void BackgroundLine::runFirst() {
    m_running = m_queue.run([this, task = std::exchange(m_tasks.front(), nullptr)](
                                const std::stop_token& token) -> BackgroundQueue::Landing {
        return [this, landing = task(token)] { firstDidRun(landing); };
    });
}

void BackgroundLine::firstDidRun(const BackgroundQueue::Landing& landing) {
    m_tasks.pop_front();
    if (!m_tasks.empty())
        runFirst();
    if (landing)
        landing();
    if (m_tasks.empty() && m_whenEmpty)
        std::exchange(m_whenEmpty, nullptr)();
}

void BackgroundLine::whenEmpty(std::function<void()> action) {
    if (m_tasks.empty())
        action();
    else
        m_whenEmpty = std::move(action);
}

void BackgroundLine::finish() {
    while (!m_tasks.empty())
        m_queue.finish();
}

} // namespace dropshade
