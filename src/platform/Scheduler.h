// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/ReferenceTime.h"

#include <chrono>
#include <functional>
#include <memory>

namespace dropshade {

/// Work that waits for its moment; to destroy it is to cancel it. Holding it in a field and
/// assigning anew makes a trailing delay: the newer work replaces the older.
class ScheduledWork {
public:
    virtual ~ScheduledWork() = default;
};

/// Time and delays on the main thread.
class Scheduler {
public:
    virtual ~Scheduler() = default;

    /// Runs `action` once on the main thread, no sooner than `delay` from now and never within this
    /// call, unless the returned work is destroyed first. The action may destroy its own work.
    [[nodiscard]] virtual std::unique_ptr<ScheduledWork> after(std::chrono::milliseconds delay,
                                                               std::function<void()> action) = 0;

    /// The present moment by the wall clock.
    [[nodiscard]] virtual ReferenceTime now() const = 0;
};

} // namespace dropshade
