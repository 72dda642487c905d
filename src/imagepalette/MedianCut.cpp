// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "imagepalette/ImageQuantizer.h"

#include <algorithm>
#include <array>
#include <cassert>
#include <cstring>
#include <utility>
#include <vector>

namespace dropshade::ImageQuantizer {

namespace {

// A pixel with its three channels in the low bytes, red lowest: one load, one store to move it.
using PackedPixel = std::uint32_t;

constexpr int channelCount = 3;

std::uint8_t channelOf(PackedPixel pixel, int channel) {
    return static_cast<std::uint8_t>(pixel >> (8 * channel));
}

/// A stretch of the pixel list that stands for one colour, with the bounds of its channels.
struct Box {
    PackedPixel* pixels = nullptr;
    std::size_t count = 0;
    std::array<std::uint8_t, channelCount> min{};
    std::array<std::uint8_t, channelCount> max{};

    int range(int channel) const { return max[channel] - min[channel]; }
    int widestRange() const { return std::max({range(0), range(1), range(2)}); }

    /// Ties go to red before green before blue.
    int widestChannel() const {
        int widest = 0;
        for (int channel = 1; channel < channelCount; ++channel) {
            if (range(channel) > range(widest))
                widest = channel;
        }
        return widest;
    }
};

/// A box of the `count` pixels from `pixels` on.
Box boxOf(PackedPixel* pixels, std::size_t count) {
    // Four pixels, channel by channel, side by side: a register of bytes to take minima in.
    constexpr std::size_t lanes = 16;
    constexpr std::size_t pixelsAtOnce = lanes / sizeof(PackedPixel);
    std::array<std::uint8_t, lanes> min;
    std::array<std::uint8_t, lanes> max;
    min.fill(255);
    max.fill(0);
    std::array<std::uint8_t, lanes> bytes;
    const auto take = [&] {
        for (std::size_t lane = 0; lane < lanes; ++lane) {
            min[lane] = std::min(min[lane], bytes[lane]);
            max[lane] = std::max(max[lane], bytes[lane]);
        }
    };
    std::size_t at = 0;
    for (; at + pixelsAtOnce <= count; at += pixelsAtOnce) {
        std::memcpy(bytes.data(), pixels + at, lanes);
        take();
    }
    for (; at < count; ++at) {
        for (std::size_t copy = 0; copy < pixelsAtOnce; ++copy)
            std::memcpy(bytes.data() + copy * sizeof(PackedPixel), pixels + at,
                        sizeof(PackedPixel));
        take();
    }
    Box box{pixels, count, {}, {}};
    for (std::size_t channel = 0; channel < channelCount; ++channel) {
        box.min[channel] =
            std::min({min[channel], min[channel + 4], min[channel + 8], min[channel + 12]});
        box.max[channel] =
            std::max({max[channel], max[channel + 4], max[channel + 8], max[channel + 12]});
    }
    return box;
}

/// Sorts the box by one channel, ascending and stable, by counting; `scratch` has room for it.
void sortBy(int channel, const Box& box, PackedPixel* scratch) {
    if (box.range(channel) == 0)
        return;
    std::array<std::uint32_t, 256> next{};
    for (std::size_t at = 0; at < box.count; ++at)
        ++next[channelOf(box.pixels[at], channel)];
    std::uint32_t start = 0;
    for (std::uint32_t& entry : next)
        start += std::exchange(entry, start);
    for (std::size_t at = 0; at < box.count; ++at)
        scratch[next[channelOf(box.pixels[at], channel)]++] = box.pixels[at];
    std::copy_n(scratch, box.count, box.pixels);
}

QuantizedColor meanOf(const Box& box) {
    std::array<std::uint64_t, channelCount> sum{};
    for (std::size_t at = 0; at < box.count; ++at) {
        for (int channel = 0; channel < channelCount; ++channel)
            sum[channel] += channelOf(box.pixels[at], channel);
    }
    return {static_cast<std::uint8_t>(sum[0] / box.count),
            static_cast<std::uint8_t>(sum[1] / box.count),
            static_cast<std::uint8_t>(sum[2] / box.count), static_cast<std::int64_t>(box.count)};
}

/// The first of the boxes with the widest range that can be split; `end` where none can.
std::vector<Box>::iterator widest(std::vector<Box>& boxes) {
    auto best = boxes.end();
    for (auto box = boxes.begin(); box != boxes.end(); ++box) {
        if (box->count >= 2 && (best == boxes.end() || box->widestRange() > best->widestRange()))
            best = box;
    }
    return best;
}

} // namespace

std::vector<QuantizedColor> medianCut(std::span<const Pixel> pixels, int k) {
    assert(k >= 1);
    if (pixels.empty())
        return {};
    std::vector<PackedPixel> packed(pixels.size());
    std::transform(pixels.begin(), pixels.end(), packed.begin(), [](Pixel pixel) {
        return PackedPixel{pixel.red} | PackedPixel{pixel.green} << 8 |
               PackedPixel{pixel.blue} << 16;
    });
    std::vector<PackedPixel> scratch(pixels.size());

    std::vector<Box> boxes{boxOf(packed.data(), packed.size())};
    while (boxes.size() < static_cast<std::size_t>(std::max(k, 1))) {
        const auto chosen = widest(boxes);
        if (chosen == boxes.end())
            break;
        const Box box = *chosen;
        boxes.erase(chosen);
        sortBy(box.widestChannel(), box, scratch.data());
        const std::size_t lower = box.count / 2;
        boxes.push_back(boxOf(box.pixels, lower));
        boxes.push_back(boxOf(box.pixels + lower, box.count - lower));
    }

    std::vector<QuantizedColor> colors(boxes.size());
    std::transform(boxes.begin(), boxes.end(), colors.begin(), meanOf);
    return colors;
}

} // namespace dropshade::ImageQuantizer
