// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Scheduler.h"

namespace dropshade::bench {

/// Delays that never end: what a benchmark measures it asks for by hand.
class StandingClock : public Scheduler {
public:
    std::unique_ptr<ScheduledWork> after(std::chrono::milliseconds,
                                         std::function<void()>) override {
        return std::make_unique<ScheduledWork>();
    }
    ReferenceTime now() const override { return ReferenceTime{800000000.0}; }
};

} // namespace dropshade::bench
