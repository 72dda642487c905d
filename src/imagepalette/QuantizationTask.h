// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "imagepalette/ImageQuantizer.h"
#include "platform/BackgroundQueue.h"
#include "platform/Scheduler.h"

#include <functional>
#include <memory>
#include <vector>

namespace dropshade {

/// What is to be computed. A value of its own: nobody changes it meanwhile.
struct QuantizationJob {
    PixelBuffer pixels;
    /// Fewer where there are fewer pixels; none, of none.
    int count = 0;
    QuantizationAlgorithm algorithm = QuantizationAlgorithm::kMeans;
    std::function<RandomBits()> makeRandomBits;
};

[[nodiscard]] std::vector<QuantizedColor> quantized(const QuantizationJob& job);

/// A computation on its way; to destroy it is to cancel it. It first waits for `delay`, so that of
/// many quick changes, each of which replaces the task before it, only the last one computes.
class QuantizationTask {
public:
    static constexpr std::chrono::milliseconds delay{30};

    using Landing = std::function<void(std::vector<QuantizedColor>)>;

    /// `land` gets the result on the main thread; it may destroy the task.
    QuantizationTask(Scheduler& scheduler, BackgroundQueue& backgroundQueue, QuantizationJob job,
                     Landing land);

private:
    std::unique_ptr<ScheduledWork> m_sleep;
    std::unique_ptr<BackgroundWork> m_computation;
};

} // namespace dropshade
