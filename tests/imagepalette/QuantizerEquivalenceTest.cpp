// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "imagepalette/ImageQuantizer.h"
#include "imagepalette/ReferenceQuantizer.h"
#include "imagepalette/SampleImages.h"

#include <gtest/gtest.h>

#include <ostream>

namespace dropshade {

void PrintTo(const QuantizedColor& color, std::ostream* out) {
    *out << int{color.r} << ' ' << int{color.g} << ' ' << int{color.b} << " × " << color.count;
}

namespace {

// A build for looking for mistakes runs ten times slower.
#ifdef NDEBUG
constexpr int thoroughness = 10;
#else
constexpr int thoroughness = 1;
#endif
constexpr int smallImages = 250 * thoroughness;
constexpr int middlingImages = 15 * thoroughness;
constexpr int largeImages = thoroughness;

int randomK(std::mt19937_64& generator) {
    return std::uniform_int_distribution<int>(1, 40)(generator);
}

std::vector<Pixel> imageOfRound(int round, std::mt19937_64& generator) {
    if (round < smallImages)
        return SampleImages::randomImage(generator, 300);
    if (round < smallImages + middlingImages)
        return SampleImages::randomImage(generator, 8000);
    return round % 2 == 0 ? SampleImages::noise(generator, 40'000)
                          : SampleImages::scene(generator, 200, 200);
}

/// Calls `check` with thousands of small images and some of full size, and a k for each.
template <typename Check>
void forEachImage(std::uint64_t seed, Check check) {
    std::mt19937_64 generator(seed);
    for (int round = 0; round < smallImages + middlingImages + largeImages; ++round) {
        SCOPED_TRACE(testing::Message() << "seed " << seed << ", round " << round);
        const std::vector<Pixel> pixels = imageOfRound(round, generator);
        const int k = randomK(generator);
        check(pixels, k, generator());
        if (testing::Test::HasFatalFailure())
            return;
    }
}

TEST(KMeans, EqualsTheReferenceForTheSameDraws) {
    forEachImage(11, [](const std::vector<Pixel>& pixels, int k, std::uint64_t seed) {
        ASSERT_EQ(ImageQuantizer::kMeans(pixels, k, SampleImages::seededBits(seed)),
                  ReferenceQuantizer::kMeans(pixels, k, SampleImages::seededBits(seed)));
    });
}

TEST(KMeans, EqualsTheReferenceForExtremeDraws) {
    const std::vector<std::uint64_t> extremes = {0, 1, 2047, 2048, ~std::uint64_t{0} - 1'000'000};
    forEachImage(12, [&](const std::vector<Pixel>& pixels, int k, std::uint64_t seed) {
        const auto draws = [&, seed] {
            return [&extremes, generator = std::mt19937_64(seed)]() mutable {
                return extremes[generator() % extremes.size()];
            };
        };
        ASSERT_EQ(ImageQuantizer::kMeans(pixels, k, draws()),
                  ReferenceQuantizer::kMeans(pixels, k, draws()));
    });
}

TEST(MedianCut, EqualsTheReference) {
    forEachImage(13, [](const std::vector<Pixel>& pixels, int k, std::uint64_t) {
        ASSERT_EQ(ImageQuantizer::medianCut(pixels, k), ReferenceQuantizer::medianCut(pixels, k));
    });
}

TEST(Octree, EqualsTheReference) {
    forEachImage(14, [](const std::vector<Pixel>& pixels, int k, std::uint64_t) {
        ASSERT_EQ(ImageQuantizer::octree(pixels, k), ReferenceQuantizer::octree(pixels, k));
    });
}

TEST(Octree, EqualsTheReferenceForManyCountsOfOneImage) {
    std::mt19937_64 generator(15);
    const std::vector<Pixel> pixels = SampleImages::scene(generator, 40, 40);
    for (int k = 1; k <= 1600; k += k < 64 ? 1 : 260 / thoroughness)
        ASSERT_EQ(ImageQuantizer::octree(pixels, k), ReferenceQuantizer::octree(pixels, k)) << k;
}

} // namespace
} // namespace dropshade
