// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "imagepalette/ImageQuantizer.h"
#include "imagepalette/PixelTotals.h"

#include <algorithm>
#include <cassert>
#include <limits>
#include <numeric>
#include <vector>

namespace dropshade::ImageQuantizer {

namespace {

constexpr int deepestLevel = 8;
constexpr std::uint32_t noNode = std::numeric_limits<std::uint32_t>::max();

/// All pixels that share the high bits of their channels, as many as the level has.
struct Node {
    std::uint32_t parent = 0;
    /// The octants on the way from the root, three bits each, filled up to the deepest level: in
    /// the order of a walk through the tree, and the same for a node and its first child.
    std::uint32_t path = 0;
    PixelTotals totals;
};

/// One level of the tree, its nodes in the order in which the pixels reach them.
using Level = std::vector<Node>;

bool rarer(const Node& first, const Node& second) {
    return first.totals.count < second.totals.count;
}

/// The level below `parents`. `nodeOfPixel` holds each pixel's node there, and then its node here.
Level levelBelow(const Level& parents, int level, std::span<const Pixel> pixels,
                 std::vector<std::uint32_t>& nodeOfPixel) {
    const int bit = deepestLevel - level;
    const int pathShift = 3 * bit;
    std::vector<std::uint32_t> childOf(parents.size() * 8, noNode);
    Level nodes;
    // Never grows: its address is taken.
    nodes.reserve(std::min(parents.size() * 8, pixels.size()));
    Node* const node = nodes.data();
    std::uint32_t* const current = nodeOfPixel.data();
    for (std::size_t at = 0; at < pixels.size(); ++at) {
        const Pixel pixel = pixels.data()[at];
        const std::uint32_t octant = (pixel.red >> bit & 1u) << 2 | (pixel.green >> bit & 1u) << 1 |
                                     (pixel.blue >> bit & 1u);
        std::uint32_t& child = childOf.data()[current[at] * 8 + octant];
        if (child == noNode) {
            child = static_cast<std::uint32_t>(nodes.size());
            nodes.push_back({current[at], parents[current[at]].path | octant << pathShift, {}});
        }
        current[at] = child;
        node[child].totals.add({pixel.red, pixel.green, pixel.blue, 1});
    }
    return nodes;
}

/// The children of one node, in octant order.
using Siblings = std::vector<Node>;

/// Merges the rarest of `children` with the `merges` next rarer ones; it keeps its place.
void mergeRarest(Siblings& children, std::size_t merges) {
    std::vector<std::size_t> order(children.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::stable_sort(order.begin(), order.end(), [&](std::size_t first, std::size_t second) {
        return rarer(children[first], children[second]);
    });
    for (std::size_t at = 1; at <= merges; ++at) {
        children[order.front()].totals.add(children[order[at]].totals);
        children[order[at]].totals.count = 0;
    }
    std::erase_if(children, [](const Node& child) { return child.totals.count == 0; });
}

Node sumOf(const Siblings& children) {
    // The first child's path is as good as the parent's own: nothing else is left below it.
    Node sum = children.front();
    std::for_each(children.begin() + 1, children.end(),
                  [&sum](const Node& child) { sum.totals.add(child.totals); });
    return sum;
}

/// Merges leaves into the `parentCount` nodes above them, the rarest parent first, until there are
/// `k`. There are more than `k` leaves and at most `k` parents.
///
/// The reduction goes from the deepest level up and stops in the middle of the first level that
/// gets it down to `k`. Every level below that one is merged whole, whatever the order, so only
/// this one has to be looked at.
Level reduced(const Level& leaves, std::size_t parentCount, std::size_t k) {
    std::vector<Siblings> families(parentCount);
    std::vector<std::int64_t> familyCounts(parentCount, 0);
    for (const Node& leaf : leaves) {
        families[leaf.parent].push_back(leaf);
        familyCounts[leaf.parent] += leaf.totals.count;
    }
    std::vector<std::size_t> order(parentCount);
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::stable_sort(order.begin(), order.end(), [&](std::size_t first, std::size_t second) {
        return familyCounts[first] < familyCounts[second];
    });

    Level kept;
    std::size_t leafCount = leaves.size();
    for (const std::size_t index : order) {
        Siblings& children = families[index];
        std::sort(children.begin(), children.end(),
                  [](const Node& first, const Node& second) { return first.path < second.path; });
        const std::size_t excess = leafCount - k;
        const std::size_t merges = std::min(excess, children.size() - 1);
        leafCount -= merges;
        if (merges == children.size() - 1)
            children = {sumOf(children)};
        else if (merges > 0)
            mergeRarest(children, merges);
        kept.insert(kept.end(), children.begin(), children.end());
    }
    return kept;
}

QuantizedColor meanOf(const Node& node) {
    const auto& [red, green, blue, count] = node.totals;
    return {static_cast<std::uint8_t>(red / count), static_cast<std::uint8_t>(green / count),
            static_cast<std::uint8_t>(blue / count), count};
}

} // namespace

std::vector<QuantizedColor> octree(std::span<const Pixel> pixels, int k) {
    assert(k >= 1);
    if (pixels.empty())
        return {};
    const auto wanted = static_cast<std::size_t>(std::max(k, 1));
    std::vector<std::uint32_t> nodeOfPixel(pixels.size(), 0);
    Level leaves{Node{}};
    std::size_t parentCount = 0;
    int level = 0;
    while (level < deepestLevel && leaves.size() <= wanted) {
        parentCount = leaves.size();
        leaves = levelBelow(leaves, ++level, pixels, nodeOfPixel);
    }
    // The root is never merged into: its octants all stay for the cut at the end.
    if (level > 1 && leaves.size() > wanted)
        leaves = reduced(leaves, parentCount, wanted);

    std::sort(leaves.begin(), leaves.end(),
              [](const Node& first, const Node& second) { return first.path < second.path; });
    std::vector<QuantizedColor> colors(leaves.size());
    std::transform(leaves.begin(), leaves.end(), colors.begin(), meanOf);
    if (colors.size() > wanted) {
        colors = sorted(colors, SwatchSortOrder::frequency);
        colors.resize(wanted);
    }
    return colors;
}

} // namespace dropshade::ImageQuantizer
