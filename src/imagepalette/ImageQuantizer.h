// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "color/SRGBColor.h"
#include "imagepalette/PixelBuffer.h"

#include <array>
#include <cstdint>
#include <functional>
#include <span>
#include <string_view>
#include <vector>

namespace dropshade {

/// A colour that stands for `count` pixels of an image.
struct QuantizedColor {
    std::uint8_t r = 0;
    std::uint8_t g = 0;
    std::uint8_t b = 0;
    std::int64_t count = 0;

    friend constexpr bool operator==(const QuantizedColor&, const QuantizedColor&) = default;
};

/// The same colour, opaque.
[[nodiscard]] SRGBColor colorOf(const QuantizedColor& color);

enum class QuantizationAlgorithm { kMeans, medianCut, octree };

enum class SwatchSortOrder { frequency, hue, lightToDark, darkToLight };

/// A row of one of the two tables below. `title` is English; whoever shows it translates it.
template <typename Value>
struct QuantizerChoice {
    Value value{};
    std::string_view rawValue;
    std::string_view title;
};

/// In the order in which they are offered.
inline constexpr std::array<QuantizerChoice<QuantizationAlgorithm>, 3> quantizationAlgorithms = {{
    {QuantizationAlgorithm::kMeans, "kMeans", "K-means"},
    {QuantizationAlgorithm::medianCut, "medianCut", "Median cut"},
    {QuantizationAlgorithm::octree, "octree", "Octree"},
}};

/// In the order in which they are offered.
inline constexpr std::array<QuantizerChoice<SwatchSortOrder>, 4> swatchSortOrders = {{
    {SwatchSortOrder::frequency, "frequency", "Frequency"},
    {SwatchSortOrder::hue, "hue", "Hue"},
    {SwatchSortOrder::lightToDark, "lightToDark", "Light to dark"},
    {SwatchSortOrder::darkToLight, "darkToLight", "Dark to light"},
}};

/// Gives 64 uniformly random bits at each call.
using RandomBits = std::function<std::uint64_t()>;

/// Reduces the pixels of an image to at most `k` colours, 1 or more, that represent it. All
/// distances and means are those of the 8-bit sRGB values. No pixels give no colours. Pure
/// functions that keep no state: any thread may call them.
namespace ImageQuantizer {

/// The system's random source, a different sequence in every run.
[[nodiscard]] RandomBits systemRandomBits();

/// Lloyd's iteration, at most 12 passes, from centres that are drawn as Arthur and Vassilvitskii's
/// "k-means++" (2007) draws them. `random` gives one draw for the first centre (more where one
/// falls outside the largest multiple of the number of pixels) and one for each other. Fewer
/// colours than `k` where the image has fewer, or where a centre has lost all its pixels. Rounded
/// means.
[[nodiscard]] std::vector<QuantizedColor> kMeans(std::span<const Pixel> pixels, int k,
                                                 const RandomBits& random = systemRandomBits());

/// Heckbert's median cut (1982), split by population: the box with the widest channel is halved
/// until there are `k`. A box of equal pixels is halved too, so equal colours can come out.
/// Truncated means.
[[nodiscard]] std::vector<QuantizedColor> medianCut(std::span<const Pixel> pixels, int k);

/// Gervautz and Purgathofer's octree (1988), built whole and then reduced from the bottom, rarest
/// nodes first. The eight octants below the root are never merged: where `k` is smaller, the most
/// frequent `k` of them stay, by falling count. Truncated means.
[[nodiscard]] std::vector<QuantizedColor> octree(std::span<const Pixel> pixels, int k);

/// `colors` in the given order; those that tie keep theirs. Greys have hue 0 and so go with the
/// reds.
[[nodiscard]] std::vector<QuantizedColor> sorted(std::span<const QuantizedColor> colors,
                                                 SwatchSortOrder order);

} // namespace ImageQuantizer
} // namespace dropshade
