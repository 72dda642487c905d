// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Scheduler.h"

namespace dropshade {

/// Time by the system's clock, delays by the event loop of the thread that asks.
class QtScheduler : public Scheduler {
public:
    [[nodiscard]] std::unique_ptr<ScheduledWork> after(std::chrono::milliseconds delay,
                                                       std::function<void()> action) override;
    [[nodiscard]] ReferenceTime now() const override;
};

} // namespace dropshade
