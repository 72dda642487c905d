// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "imagepalette/QuantizationTask.h"

#include <algorithm>
#include <utility>

namespace dropshade {

std::vector<QuantizedColor> quantized(const QuantizationJob& job) {
    const auto pixels = job.pixels.pixels();
    const int count =
        static_cast<int>(std::min(pixels.size(), static_cast<std::size_t>(std::max(job.count, 0))));
    if (count == 0)
        return {};
    switch (job.algorithm) {
    case QuantizationAlgorithm::kMeans:
        return ImageQuantizer::kMeans(pixels, count, job.makeRandomBits());
    case QuantizationAlgorithm::medianCut:
        return ImageQuantizer::medianCut(pixels, count);
    case QuantizationAlgorithm::octree:
        return ImageQuantizer::octree(pixels, count);
    }
    return {};
}

QuantizationTask::QuantizationTask(Scheduler& scheduler, BackgroundQueue& backgroundQueue,
                                   QuantizationJob job, Landing land)
    : m_sleep(scheduler.after(
          delay, [this, &backgroundQueue, job = std::move(job), land = std::move(land)] {
              m_computation = backgroundQueue.run(
                  [job, land](const std::stop_token& token) -> BackgroundQueue::Landing {
                      if (token.stop_requested())
                          return nullptr;
                      return [land, result = quantized(job)]() mutable { land(std::move(result)); };
                  });
          })) {}

} // namespace dropshade
