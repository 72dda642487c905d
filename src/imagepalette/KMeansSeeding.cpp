// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "imagepalette/KMeansSeeding.h"

#include <algorithm>
#include <array>
#include <limits>

namespace dropshade {

namespace {

// Centres and pixels are whole numbers here, so every squared distance is one below 2^18, and the
// sum of a block of them is one below 2^24: single precision holds both exactly, and four at a
// time.
constexpr std::size_t lanes = 8;
constexpr std::size_t blockSize = 64;

std::size_t uniformBelow(std::size_t bound, const RandomBits& random) {
    constexpr std::uint64_t all = std::numeric_limits<std::uint64_t>::max();
    const std::uint64_t limit = all - all % bound;
    std::uint64_t drawn = random();
    while (drawn >= limit)
        drawn = random();
    return static_cast<std::size_t>(drawn % bound);
}

double uniformBelow(double total, const RandomBits& random) {
    return static_cast<double>(random() >> 11) * 0x1p-53 * total;
}

/// Keeps, for each pixel, the squared distance to its nearest centre.
class NearestDistances {
public:
    explicit NearestDistances(std::span<const Pixel> pixels)
        : m_count(pixels.size()), m_blocks((pixels.size() + blockSize - 1) / blockSize) {
        for (std::size_t at = 0; at < m_count; ++at) {
            Block& block = m_blocks[at / blockSize];
            block.red[at % blockSize] = pixels[at].red;
            block.green[at % blockSize] = pixels[at].green;
            block.blue[at % blockSize] = pixels[at].blue;
            block.nearest[at % blockSize] = std::numeric_limits<float>::max();
        }
    }

    /// Takes one more centre into account and gives the sum of the distances.
    double add(Pixel centre) {
        double total = 0.0;
        for (Block& block : m_blocks) {
            block.add(centre.red, centre.green, centre.blue);
            total += block.sum;
        }
        return total;
    }

    /// The first pixel at which `draw`, less the distances up to and including that pixel's, is at
    /// or below 0; the last pixel where there is none. The draw is less than 2^53 and the distances
    /// are whole, so no difference is rounded, and whole blocks can be stepped over.
    std::size_t pixelAt(double draw) const {
        std::size_t index = 0;
        while (index < m_blocks.size() && draw > m_blocks[index].sum)
            draw -= m_blocks[index++].sum;
        for (index *= blockSize; index < m_count; ++index) {
            draw -= m_blocks[index / blockSize].nearest[index % blockSize];
            if (draw <= 0.0)
                return index;
        }
        return m_count - 1;
    }

private:
    /// Its unused tail has distance 0, to every centre.
    struct Block {
        std::array<float, blockSize> red{};
        std::array<float, blockSize> green{};
        std::array<float, blockSize> blue{};
        std::array<float, blockSize> nearest{};
        float sum = 0.0F;

        void add(float centreRed, float centreGreen, float centreBlue) {
            float sums[lanes] = {};
            for (std::size_t start = 0; start < blockSize; start += lanes) {
                for (std::size_t lane = 0; lane < lanes; ++lane) {
                    const std::size_t at = start + lane;
                    const float dr = red.data()[at] - centreRed;
                    const float dg = green.data()[at] - centreGreen;
                    const float db = blue.data()[at] - centreBlue;
                    const float distance = dr * dr + dg * dg + db * db;
                    const float before = nearest.data()[at];
                    nearest.data()[at] = distance < before ? distance : before;
                    sums[lane] += nearest.data()[at];
                }
            }
            sum = 0.0F;
            for (const float part : sums)
                sum += part;
        }
    };

    std::size_t m_count;
    std::vector<Block> m_blocks;
};

} // namespace

std::vector<Centre> seededCentres(std::span<const Pixel> pixels, int k, const RandomBits& random) {
    NearestDistances distances(pixels);
    Pixel chosen = pixels[uniformBelow(pixels.size(), random)];
    std::vector<Centre> centres;
    for (;;) {
        centres.push_back({static_cast<double>(chosen.red), static_cast<double>(chosen.green),
                           static_cast<double>(chosen.blue)});
        if (centres.size() >= static_cast<std::size_t>(std::max(k, 1)))
            return centres;
        const double total = distances.add(chosen);
        if (total == 0.0)
            return centres;
        chosen = pixels[distances.pixelAt(uniformBelow(total, random))];
    }
}

} // namespace dropshade
