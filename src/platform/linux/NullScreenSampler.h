// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/ScreenSampler.h"

#include <QTimer>

#include <utility>

namespace dropshade {

/// For desktops whose screen cannot be read: every sample completes with nothing.
class NullScreenSampler : public ScreenSampler {
public:
    void sample(Describe, Completion completion) override {
        QTimer::singleShot(0, [waiting = std::move(completion)] { waiting(std::nullopt); });
    }
};

} // namespace dropshade
