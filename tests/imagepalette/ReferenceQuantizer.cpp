// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "imagepalette/ReferenceQuantizer.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace dropshade::ReferenceQuantizer {

namespace {

using Triple = std::array<double, 3>;

Triple tripleOf(Pixel pixel) {
    return {static_cast<double>(pixel.red), static_cast<double>(pixel.green),
            static_cast<double>(pixel.blue)};
}

double squaredDistance(const Triple& first, const Triple& second) {
    const double red = first[0] - second[0];
    const double green = first[1] - second[1];
    const double blue = first[2] - second[2];
    return red * red + green * green + blue * blue;
}

std::size_t uniformIndex(std::size_t count, const RandomBits& random) {
    // The draws above the largest multiple of the count would favour the low indices.
    const std::uint64_t all = std::numeric_limits<std::uint64_t>::max();
    std::uint64_t drawn = 0;
    do
        drawn = random();
    while (drawn >= all - all % count);
    return drawn % count;
}

std::vector<Triple> seeds(std::span<const Pixel> pixels, int k, const RandomBits& random) {
    std::vector<Triple> centres{tripleOf(pixels[uniformIndex(pixels.size(), random)])};
    std::vector<double> distances(pixels.size(), std::numeric_limits<double>::max());
    for (int c = 0; c <= k - 2; ++c) {
        double total = 0.0;
        for (std::size_t at = 0; at < pixels.size(); ++at) {
            const double distance = squaredDistance(tripleOf(pixels[at]), centres[c]);
            if (distance < distances[at])
                distances[at] = distance;
            total += distances[at];
        }
        if (total == 0.0)
            break;
        double draw = static_cast<double>(random() >> 11) / 9007199254740992.0 * total;
        std::size_t chosen = pixels.size() - 1;
        for (std::size_t at = 0; at < pixels.size(); ++at) {
            draw -= distances[at];
            if (draw <= 0.0) {
                chosen = at;
                break;
            }
        }
        centres.push_back(tripleOf(pixels[chosen]));
    }
    return centres;
}

std::uint8_t roundedByte(double value) {
    if (value <= 0.0)
        return 0;
    if (value >= 255.0)
        return 255;
    return static_cast<std::uint8_t>(std::round(value));
}

bool assignAll(std::span<const Pixel> pixels, const std::vector<Triple>& centres,
               std::vector<std::size_t>& assignments) {
    bool changed = false;
    for (std::size_t at = 0; at < pixels.size(); ++at) {
        double least = std::numeric_limits<double>::max();
        std::size_t best = 0;
        for (std::size_t c = 0; c < centres.size(); ++c) {
            const double distance = squaredDistance(tripleOf(pixels[at]), centres[c]);
            if (distance < least) {
                least = distance;
                best = c;
            }
        }
        if (assignments[at] != best) {
            assignments[at] = best;
            changed = true;
        }
    }
    return changed;
}

void moveCentres(std::span<const Pixel> pixels, const std::vector<std::size_t>& assignments,
                 std::vector<Triple>& centres) {
    std::vector<Triple> sums(centres.size(), Triple{});
    std::vector<double> counts(centres.size(), 0.0);
    for (std::size_t at = 0; at < pixels.size(); ++at) {
        for (int channel = 0; channel < 3; ++channel)
            sums[assignments[at]][channel] += tripleOf(pixels[at])[channel];
        counts[assignments[at]] += 1.0;
    }
    for (std::size_t c = 0; c < centres.size(); ++c) {
        for (int channel = 0; channel < 3 && counts[c] > 0.0; ++channel)
            centres[c][channel] = sums[c][channel] / counts[c];
    }
}

struct Box {
    std::vector<std::size_t> indices;
    std::array<int, 3> min{255, 255, 255};
    std::array<int, 3> max{0, 0, 0};

    int range(int channel) const { return max[channel] - min[channel]; }
    int widest() const { return std::max({range(0), range(1), range(2)}); }
};

int channelOf(Pixel pixel, int channel) {
    return channel == 0 ? pixel.red : channel == 1 ? pixel.green : pixel.blue;
}

Box boxOf(std::span<const Pixel> pixels, std::vector<std::size_t> indices) {
    Box box;
    box.indices = std::move(indices);
    for (const std::size_t index : box.indices) {
        for (int channel = 0; channel < 3; ++channel) {
            box.min[channel] = std::min(box.min[channel], channelOf(pixels[index], channel));
            box.max[channel] = std::max(box.max[channel], channelOf(pixels[index], channel));
        }
    }
    return box;
}

int axisOf(const Box& box) {
    if (box.range(1) > box.range(0) || box.range(2) > box.range(0))
        return box.range(2) > box.range(1) ? 2 : 1;
    return 0;
}

} // namespace

std::vector<QuantizedColor> kMeans(std::span<const Pixel> pixels, int k, const RandomBits& random) {
    if (pixels.empty())
        return {};
    std::vector<Triple> centres = seeds(pixels, k, random);
    std::vector<std::size_t> assignments(pixels.size(), 0);
    for (int pass = 0; pass < 12; ++pass) {
        const bool changed = assignAll(pixels, centres, assignments);
        moveCentres(pixels, assignments, centres);
        if (!changed)
            break;
    }
    std::vector<QuantizedColor> colors;
    for (std::size_t c = 0; c < centres.size(); ++c) {
        const std::int64_t count = std::count(assignments.begin(), assignments.end(), c);
        if (count >= 1)
            colors.push_back({roundedByte(centres[c][0]), roundedByte(centres[c][1]),
                              roundedByte(centres[c][2]), count});
    }
    return colors;
}

std::vector<QuantizedColor> medianCut(std::span<const Pixel> pixels, int k) {
    if (pixels.empty())
        return {};
    std::vector<std::size_t> all(pixels.size());
    for (std::size_t at = 0; at < all.size(); ++at)
        all[at] = at;
    std::vector<Box> boxes{boxOf(pixels, all)};
    while (k >= 2) {
        std::size_t chosen = boxes.size();
        for (std::size_t at = 0; at < boxes.size(); ++at) {
            if (boxes[at].indices.size() >= 2 &&
                (chosen == boxes.size() || boxes[at].widest() > boxes[chosen].widest()))
                chosen = at;
        }
        if (chosen == boxes.size())
            break;
        Box box = boxes[chosen];
        boxes.erase(boxes.begin() + static_cast<std::ptrdiff_t>(chosen));
        const int axis = axisOf(box);
        std::stable_sort(
            box.indices.begin(), box.indices.end(), [&](std::size_t first, std::size_t second) {
                return channelOf(pixels[first], axis) < channelOf(pixels[second], axis);
            });
        const auto middle =
            box.indices.begin() + static_cast<std::ptrdiff_t>(box.indices.size() / 2);
        boxes.push_back(boxOf(pixels, {box.indices.begin(), middle}));
        boxes.push_back(boxOf(pixels, {middle, box.indices.end()}));
        if (boxes.size() >= static_cast<std::size_t>(k))
            break;
    }
    std::vector<QuantizedColor> colors;
    for (const Box& box : boxes) {
        std::array<std::size_t, 3> sums{};
        for (const std::size_t index : box.indices) {
            for (int channel = 0; channel < 3; ++channel)
                sums[channel] += static_cast<std::size_t>(channelOf(pixels[index], channel));
        }
        const std::size_t count = box.indices.size();
        colors.push_back(
            {static_cast<std::uint8_t>(sums[0] / count), static_cast<std::uint8_t>(sums[1] / count),
             static_cast<std::uint8_t>(sums[2] / count), static_cast<std::int64_t>(count)});
    }
    return colors;
}

} // namespace dropshade::ReferenceQuantizer
