// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "imagepalette/ImageQuantizer.h"
#include "imagepalette/SampleImages.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <ostream>
#include <set>

namespace dropshade {

void PrintTo(const QuantizedColor& color, std::ostream* out) {
    *out << int{color.r} << ' ' << int{color.g} << ' ' << int{color.b} << " × " << color.count;
}

namespace {

using testing::ElementsAre;
using testing::UnorderedElementsAre;
using Pixels = std::vector<Pixel>;
using Colors = std::vector<QuantizedColor>;

Colors run(QuantizationAlgorithm algorithm, const Pixels& pixels, int k) {
    switch (algorithm) {
    case QuantizationAlgorithm::kMeans:
        return ImageQuantizer::kMeans(pixels, k);
    case QuantizationAlgorithm::medianCut:
        return ImageQuantizer::medianCut(pixels, k);
    case QuantizationAlgorithm::octree:
        return ImageQuantizer::octree(pixels, k);
    }
    return {};
}

class EveryAlgorithm : public testing::TestWithParam<QuantizationAlgorithm> {};

INSTANTIATE_TEST_SUITE_P(
    ImageQuantizer, EveryAlgorithm,
    testing::Values(QuantizationAlgorithm::kMeans, QuantizationAlgorithm::medianCut,
                    QuantizationAlgorithm::octree),
    [](const auto& row) {
        return std::string(quantizationAlgorithms[static_cast<std::size_t>(row.param)].rawValue);
    });

TEST_P(EveryAlgorithm, GivesNothingForNoPixels) {
    EXPECT_TRUE(run(GetParam(), {}, 8).empty());
    EXPECT_TRUE(run(GetParam(), {}, 1).empty());
}

TEST_P(EveryAlgorithm, GivesTheColorOfASinglePixel) {
    for (const int k : {1, 2, 8, 24})
        EXPECT_THAT(run(GetParam(), {{7, 8, 9}}, k), ElementsAre(QuantizedColor{7, 8, 9, 1}));
}

TEST_P(EveryAlgorithm, GivesBothOfTwoColorsOnEqualTerms) {
    const Pixels pixels = {{255, 0, 0}, {0, 0, 255}, {255, 0, 0}, {0, 0, 255}};
    EXPECT_THAT(run(GetParam(), pixels, 2),
                UnorderedElementsAre(QuantizedColor{255, 0, 0, 2}, QuantizedColor{0, 0, 255, 2}));
}

TEST_P(EveryAlgorithm, StandsForEveryPixelOnceWhereKIsNotBelowEight) {
    std::mt19937_64 generator(21);
    for (int round = 0; round < 200; ++round) {
        const Pixels pixels = SampleImages::randomImage(generator, 500);
        const Colors colors = run(GetParam(), pixels, 8 + round % 17);
        std::int64_t total = 0;
        for (const QuantizedColor& color : colors) {
            EXPECT_GE(color.count, 1);
            total += color.count;
        }
        ASSERT_EQ(total, static_cast<std::int64_t>(pixels.size())) << "seed 21, round " << round;
    }
}

TEST_P(EveryAlgorithm, NeverGivesMoreThanAsked) {
    std::mt19937_64 generator(22);
    for (int k = 1; k <= 60; ++k)
        EXPECT_LE(run(GetParam(), SampleImages::noise(generator, 300), k).size(),
                  static_cast<std::size_t>(k));
}

const Pixels solid(100, Pixel{10, 20, 30});

TEST(KMeans, GivesASolidImageOnce) {
    EXPECT_THAT(ImageQuantizer::kMeans(solid, 8), ElementsAre(QuantizedColor{10, 20, 30, 100}));
}

TEST(KMeans, OfOneIsTheRoundedMean) {
    const Pixels pixels = {{0, 0, 10}, {1, 0, 20}, {1, 1, 30}, {0, 1, 30}};
    EXPECT_THAT(ImageQuantizer::kMeans(pixels, 1), ElementsAre(QuantizedColor{1, 1, 23, 4}));
}

TEST(KMeans, FollowsItsDraws) {
    // Index 2 first; then the draw of 0 takes the first pixel, then again the first, since its
    // entry of 0 already brings the draw to 0.
    const Pixels pixels = {{0, 0, 0}, {100, 0, 0}, {200, 0, 0}};
    const RandomBits draws = [at = 0]() mutable {
        return std::vector<std::uint64_t>{2, 0, 0}[static_cast<std::size_t>(at++)];
    };
    // The second and third centres are equal, so the lower-numbered one takes the pixels.
    EXPECT_THAT(ImageQuantizer::kMeans(pixels, 3, draws),
                ElementsAre(QuantizedColor{150, 0, 0, 2}, QuantizedColor{0, 0, 0, 1}));
}

TEST(KMeans, IsNotSeededWithAConstant) {
    std::mt19937_64 generator(23);
    const Pixels pixels = SampleImages::noise(generator, 2000);
    std::set<std::uint64_t> draws;
    std::set<std::vector<int>> results;
    for (int round = 0; round < 5; ++round) {
        draws.insert(ImageQuantizer::systemRandomBits()());
        std::vector<int> flat;
        for (const QuantizedColor& color : ImageQuantizer::kMeans(pixels, 8))
            flat.insert(flat.end(), {color.r, color.g, color.b});
        results.insert(flat);
    }
    EXPECT_EQ(draws.size(), 5u);
    EXPECT_GT(results.size(), 1u);
}

TEST(KMeans, ATiedPixelGoesToTheFirstCentre) {
    // Centres 0 and 200 from the draws; 100 is as far from either.
    const Pixels pixels = {{0, 0, 0}, {100, 0, 0}, {200, 0, 0}};
    const RandomBits draws = [at = 0]() mutable {
        return at++ == 0 ? std::uint64_t{0} : ~std::uint64_t{0};
    };
    EXPECT_THAT(ImageQuantizer::kMeans(pixels, 2, draws),
                ElementsAre(QuantizedColor{50, 0, 0, 2}, QuantizedColor{200, 0, 0, 1}));
}

TEST(MedianCut, SplitsASolidImageAllTheSame) {
    const Colors colors = ImageQuantizer::medianCut(solid, 8);
    ASSERT_EQ(colors.size(), 8u);
    for (const QuantizedColor& color : colors) {
        EXPECT_EQ(color, (QuantizedColor{10, 20, 30, color.count}));
        EXPECT_GE(color.count, 12);
        EXPECT_LE(color.count, 13);
    }
}

TEST(MedianCut, OfOneIsTheTruncatedMean) {
    const Pixels pixels = {{0, 0, 10}, {1, 0, 20}, {1, 1, 30}, {1, 1, 30}};
    EXPECT_THAT(ImageQuantizer::medianCut(pixels, 1), ElementsAre(QuantizedColor{0, 0, 22, 4}));
}

TEST(MedianCut, SplitsByPopulationAndNotByValue) {
    const Pixels pixels = {{0, 0, 0}, {0, 0, 0}, {0, 0, 0}, {200, 0, 0}};
    EXPECT_THAT(ImageQuantizer::medianCut(pixels, 2),
                ElementsAre(QuantizedColor{0, 0, 0, 2}, QuantizedColor{100, 0, 0, 2}));
}

TEST(MedianCut, GivesTheOddPixelToTheUpperHalf) {
    const Pixels pixels = {{9, 0, 0}, {3, 0, 0}, {6, 0, 0}};
    EXPECT_THAT(ImageQuantizer::medianCut(pixels, 2),
                ElementsAre(QuantizedColor{3, 0, 0, 1}, QuantizedColor{7, 0, 0, 2}));
}

TEST(MedianCut, TiedChannelsGoRedGreenBlue) {
    // Each pair would come out in the other order if another channel were sorted by.
    EXPECT_THAT(ImageQuantizer::medianCut(Pixels{{9, 0, 0}, {0, 9, 9}}, 2),
                ElementsAre(QuantizedColor{0, 9, 9, 1}, QuantizedColor{9, 0, 0, 1}));
    EXPECT_THAT(ImageQuantizer::medianCut(Pixels{{0, 9, 0}, {0, 0, 9}}, 2),
                ElementsAre(QuantizedColor{0, 0, 9, 1}, QuantizedColor{0, 9, 0, 1}));
    EXPECT_THAT(ImageQuantizer::medianCut(Pixels{{0, 0, 9}, {0, 8, 0}}, 2),
                ElementsAre(QuantizedColor{0, 8, 0, 1}, QuantizedColor{0, 0, 9, 1}));
}

TEST(MedianCut, StopsWhereNoBoxHasTwoPixels) {
    EXPECT_EQ(ImageQuantizer::medianCut(Pixels{{1, 1, 1}, {2, 2, 2}, {3, 3, 3}}, 24).size(), 3u);
}

TEST(Octree, GivesASolidImageOnce) {
    EXPECT_THAT(ImageQuantizer::octree(solid, 8), ElementsAre(QuantizedColor{10, 20, 30, 100}));
}

TEST(Octree, OfOneIsTheMostPopulousOctantAndNotTheMean) {
    const Pixels pixels = {{0, 0, 0}, {10, 0, 1}, {255, 255, 255}, {0, 255, 0}, {12, 1, 0}};
    EXPECT_THAT(ImageQuantizer::octree(pixels, 1), ElementsAre(QuantizedColor{7, 0, 0, 3}));
}

TEST(Octree, TheFinalCutKeepsTheMostFrequentInFallingOrder) {
    const Pixels pixels = {{0, 0, 0},     {255, 0, 0}, {255, 0, 0},
                           {255, 0, 255}, {0, 255, 0}, {0, 255, 0}};
    EXPECT_THAT(ImageQuantizer::octree(pixels, 3),
                ElementsAre(QuantizedColor{0, 255, 0, 2}, QuantizedColor{255, 0, 0, 2},
                            QuantizedColor{0, 0, 0, 1}));
}

TEST(Octree, MergesTheRarestColorsFirst) {
    // Two pairs of neighbours, each under one node of the deepest level but one.
    const Pixels pixels = {{0, 0, 0},       {0, 0, 0},       {0, 0, 1},
                           {255, 255, 255}, {255, 255, 254}, {128, 0, 0}};
    EXPECT_THAT(ImageQuantizer::octree(pixels, 4),
                ElementsAre(QuantizedColor{0, 0, 0, 2}, QuantizedColor{0, 0, 1, 1},
                            QuantizedColor{128, 0, 0, 1}, QuantizedColor{255, 255, 254, 2}));
}

TEST(Octree, MergesPartlyIntoTheSmallestChild) {
    // Three children of one node, 3, 1 and 2 pixels: the smallest takes in the next smaller one.
    const Pixels pixels = {{0, 0, 0}, {0, 0, 0}, {0, 0, 0}, {0, 0, 1}, {1, 1, 1}, {1, 1, 1}};
    EXPECT_THAT(ImageQuantizer::octree(pixels, 2),
                ElementsAre(QuantizedColor{0, 0, 0, 3}, QuantizedColor{0, 0, 1, 3}));
}

TEST(Sorted, ByFrequencyFalls) {
    const Colors colors = {{1, 0, 0, 5}, {2, 0, 0, 9}, {3, 0, 0, 5}};
    EXPECT_THAT(ImageQuantizer::sorted(colors, SwatchSortOrder::frequency),
                ElementsAre(colors[1], colors[0], colors[2]));
}

TEST(Sorted, ByHueKeepsGreysInTheirOrderAheadOfPositiveHues) {
    const Colors colors = {{0, 0, 255, 1},  {90, 90, 90, 1}, {0, 255, 0, 1}, {255, 1, 0, 1},
                           {10, 10, 10, 1}, {255, 0, 1, 1},  {255, 0, 0, 1}};
    EXPECT_THAT(
        ImageQuantizer::sorted(colors, SwatchSortOrder::hue),
        ElementsAre(colors[1], colors[4], colors[6], colors[3], colors[2], colors[0], colors[5]));
}

TEST(Sorted, ByLightnessGoesBothWaysAndIsStableInBoth) {
    const Colors colors = {{200, 0, 0, 1}, {0, 0, 0, 1}, {0, 200, 0, 1}, {255, 255, 255, 1}};
    EXPECT_THAT(ImageQuantizer::sorted(colors, SwatchSortOrder::darkToLight),
                ElementsAre(colors[1], colors[0], colors[2], colors[3]));
    EXPECT_THAT(ImageQuantizer::sorted(colors, SwatchSortOrder::lightToDark),
                ElementsAre(colors[3], colors[0], colors[2], colors[1]));
}

template <typename Table>
void expectRows(const Table& table,
                const std::vector<std::pair<std::string_view, std::string_view>>& rows) {
    ASSERT_EQ(table.size(), rows.size());
    for (std::size_t at = 0; at < rows.size(); ++at) {
        EXPECT_EQ(static_cast<std::size_t>(table[at].value), at);
        EXPECT_EQ(table[at].rawValue, rows[at].first);
        EXPECT_EQ(table[at].title, rows[at].second);
    }
}

TEST(QuantizerTables, HoldEveryCaseInOrderWithItsNames) {
    expectRows(quantizationAlgorithms,
               {{"kMeans", "K-means"}, {"medianCut", "Median cut"}, {"octree", "Octree"}});
    expectRows(swatchSortOrders, {{"frequency", "Frequency"},
                                  {"hue", "Hue"},
                                  {"lightToDark", "Light to dark"},
                                  {"darkToLight", "Dark to light"}});
}

} // namespace
} // namespace dropshade
