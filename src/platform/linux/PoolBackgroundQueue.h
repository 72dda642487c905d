// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/BackgroundQueue.h"

#include <QObject>
#include <QThreadPool>

namespace dropshade {

/// A thread pool of its own, whose threads come with the first work and go when there is none.
/// Its end waits for what is running.
class PoolBackgroundQueue : public BackgroundQueue {
public:
    PoolBackgroundQueue();
    ~PoolBackgroundQueue() override;

    [[nodiscard]] std::unique_ptr<BackgroundWork> run(Task task) override;
    void finish() override;

private:
    QThreadPool m_pool;
    /// Landings are events for it, so none comes after its end.
    QObject m_mainThread;
};

} // namespace dropshade
