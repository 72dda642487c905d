// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "imagepalette/QuantizationTask.h"

#include "support/ManualBackgroundQueue.h"
#include "support/ManualScheduler.h"

#include <gmock/gmock.h>

namespace dropshade {
namespace {

const PixelBuffer fivePixels(std::vector<Pixel>{
    {0, 0, 0}, {255, 0, 0}, {0, 255, 0}, {0, 0, 255}, {255, 255, 255}});

class QuantizationTaskTest : public testing::Test {
protected:
    [[nodiscard]] std::unique_ptr<QuantizationTask>
    start(int count, QuantizationAlgorithm algorithm = QuantizationAlgorithm::medianCut) {
        return std::make_unique<QuantizationTask>(
            m_scheduler, m_queue,
            QuantizationJob{fivePixels, count, algorithm, ImageQuantizer::systemRandomBits},
            [this](const std::vector<QuantizedColor>& colors) { m_landed.push_back(colors); });
    }

    ManualScheduler m_scheduler;
    ManualBackgroundQueue m_queue;
    std::vector<std::vector<QuantizedColor>> m_landed;
};

TEST_F(QuantizationTaskTest, SleepsThirtyMillisecondsFirst) {
    const auto task = start(2);
    m_scheduler.advance(29);
    EXPECT_EQ(m_queue.waiting(), 0);
    m_scheduler.advance(1);
    EXPECT_EQ(m_queue.waiting(), 1);
    m_queue.workAndLand();
    ASSERT_EQ(m_landed.size(), 1U);
    EXPECT_EQ(m_landed.front().size(), 2U);
}

TEST_F(QuantizationTaskTest, CancelledInItsSleepItNeverComputes) {
    auto task = start(2);
    m_scheduler.advance(29);
    task.reset();
    m_scheduler.advance(100);
    m_queue.workAndLand();
    EXPECT_EQ(m_queue.runs(), 0);
    EXPECT_TRUE(m_landed.empty());
}

TEST_F(QuantizationTaskTest, CancelledBeforeAThreadIsFreeItNeverComputes) {
    auto task = start(2);
    m_scheduler.advance(30);
    task.reset();
    m_queue.workAndLand();
    EXPECT_EQ(m_queue.runs(), 0);
}

TEST_F(QuantizationTaskTest, CancelledAfterItHasComputedItsResultIsDropped) {
    auto task = start(2);
    m_scheduler.advance(30);
    m_queue.work();
    EXPECT_EQ(m_queue.runs(), 1);
    task.reset();
    m_queue.land();
    EXPECT_TRUE(m_landed.empty());
}

class Quantized : public testing::TestWithParam<QuantizationAlgorithm> {
protected:
    [[nodiscard]] static std::vector<QuantizedColor> of(const PixelBuffer& pixels, int count) {
        return quantized({pixels, count, GetParam(), ImageQuantizer::systemRandomBits});
    }
};

TEST_P(Quantized, OfFivePixelsToTwentyFourColorsGivesEachOfTheFive) {
    EXPECT_EQ(of(fivePixels, 24).size(), 5U);
}

TEST_P(Quantized, OfNoPixelsIsEmpty) {
    EXPECT_TRUE(of(PixelBuffer({}), 8).empty());
}

TEST_P(Quantized, ToNoColorsIsEmpty) {
    EXPECT_TRUE(of(fivePixels, 0).empty());
    EXPECT_TRUE(of(fivePixels, -1).empty());
}

INSTANTIATE_TEST_SUITE_P(Algorithms, Quantized,
                         testing::Values(QuantizationAlgorithm::kMeans,
                                         QuantizationAlgorithm::medianCut,
                                         QuantizationAlgorithm::octree));

} // namespace
} // namespace dropshade
