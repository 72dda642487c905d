// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/linux/PoolBackgroundQueue.h"

#include <QCoreApplication>
#include <QMetaObject>

#include <chrono>
#include <utility>

namespace dropshade {
namespace {

/// Longer than the pauses of a hand on a slider.
constexpr std::chrono::milliseconds idleThreadLife{2000};

class PoolWork : public BackgroundWork {
public:
    explicit PoolWork(std::stop_source stop) : m_stop(std::move(stop)) {}
    ~PoolWork() override { m_stop.request_stop(); }

private:
    std::stop_source m_stop;
};

} // namespace

PoolBackgroundQueue::PoolBackgroundQueue() {
    m_pool.setExpiryTimeout(static_cast<int>(idleThreadLife.count()));
}

PoolBackgroundQueue::~PoolBackgroundQueue() {
    m_pool.clear();
    m_pool.waitForDone();
}

std::unique_ptr<BackgroundWork> PoolBackgroundQueue::run(Task task) {
    std::stop_source stop;
    m_pool.start([this, task = std::move(task), token = stop.get_token()] {
        if (token.stop_requested())
            return;
        Landing landing = task(token);
        if (token.stop_requested() || !landing)
            return;
        // Only the main thread cancels, so that what it finds uncancelled stays so while it lands.
        QMetaObject::invokeMethod(
            &m_mainThread,
            [token, landing = std::move(landing)] {
                if (!token.stop_requested())
                    landing();
            },
            Qt::QueuedConnection);
    });
    return std::make_unique<PoolWork>(std::move(stop));
}

void PoolBackgroundQueue::finish() {
    m_pool.waitForDone();
    QCoreApplication::sendPostedEvents(&m_mainThread, QEvent::MetaCall);
}

} // namespace dropshade
