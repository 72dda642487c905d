// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "imagepalette/PixelBuffer.h"
#include "imagepalette/PixelTotals.h"

#include <cstdint>
#include <span>
#include <vector>

namespace dropshade {

/// The distinct colours of an image, each with the number of its pixels, in a tree of boxes. What
/// holds for a box holds for all its pixels, so that work per pixel becomes work per box.
class ColorTree {
public:
    /// A corner of a box, each coordinate a whole number.
    struct Corner {
        double red = 0.0;
        double green = 0.0;
        double blue = 0.0;
    };

    /// A leaf has at most this many colours.
    static constexpr std::uint32_t leafSize = 128;

    /// A stretch of the colours and the smallest box around it. A node's children follow it and
    /// fill its stretch; `nextNode` is the first node that is not below it.
    struct Node {
        std::uint32_t firstColor = 0;
        std::uint32_t endColor = 0;
        std::uint32_t nextNode = 0;
        Corner min{255.0, 255.0, 255.0};
        Corner max{0.0, 0.0, 0.0};
        PixelTotals totals;
    };

    explicit ColorTree(std::span<const Pixel> pixels);

    [[nodiscard]] std::uint32_t colorCount() const {
        return static_cast<std::uint32_t>(m_counts.size());
    }

    /// The channels of the colours, each in a list of its own, for `leafSize` elements beyond the
    /// last colour: loops may run over the end of a node's stretch.
    [[nodiscard]] const float* red() const { return m_red.data(); }
    [[nodiscard]] const float* green() const { return m_green.data(); }
    [[nodiscard]] const float* blue() const { return m_blue.data(); }

    /// What the pixels of one colour add up to.
    [[nodiscard]] PixelTotals totals(std::uint32_t color) const {
        const std::int64_t count = m_counts.data()[color];
        return {static_cast<std::int64_t>(m_red.data()[color]) * count,
                static_cast<std::int64_t>(m_green.data()[color]) * count,
                static_cast<std::int64_t>(m_blue.data()[color]) * count, count};
    }

    /// The root comes first; none where there are no pixels.
    [[nodiscard]] const std::vector<Node>& nodes() const { return m_nodes; }

    [[nodiscard]] bool isLeaf(std::uint32_t node) const {
        return m_nodes[node].nextNode == node + 1;
    }

private:
    void collectColors(std::span<const Pixel> pixels);
    void addNode(std::uint32_t firstColor, std::uint32_t endColor, int bit);
    void fillLeaf(Node& node) const;
    void fillFromChildren(std::uint32_t index);

    std::vector<float> m_red;
    std::vector<float> m_green;
    std::vector<float> m_blue;
    std::vector<std::uint32_t> m_counts;
    /// The key of each colour, by which they are sorted.
    std::vector<std::uint32_t> m_keys;
    std::vector<Node> m_nodes;
};

} // namespace dropshade
