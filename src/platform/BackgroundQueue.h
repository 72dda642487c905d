// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <stop_token>

namespace dropshade {

/// Work that is done beside the main thread; to destroy it, on the main thread, is to cancel it.
class BackgroundWork {
public:
    virtual ~BackgroundWork() = default;
};

/// Threads for what would hold up the interface.
class BackgroundQueue {
public:
    /// What to do on the main thread with what was found out; nothing where it is empty.
    using Landing = std::function<void()>;
    /// Called on another thread. It shares nothing that changes with the main thread, and may look
    /// at the token now and then to learn that nobody waits for it any more.
    using Task = std::function<Landing(const std::stop_token&)>;

    virtual ~BackgroundQueue() = default;

    /// Runs `task` on another thread, and then, later and never within this call, its landing on
    /// the main thread. Work that is destroyed doesn't land; where it hasn't begun yet, it doesn't
    /// run either. The landing may destroy its own work.
    [[nodiscard]] virtual std::unique_ptr<BackgroundWork> run(Task task) = 0;

    /// Has all work that was handed over and not cancelled run and land before it returns. For the
    /// end of the program, when the main thread comes no more to what waits for it.
    virtual void finish() = 0;
};

} // namespace dropshade
