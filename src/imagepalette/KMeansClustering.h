// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "imagepalette/ColorTree.h"
#include "imagepalette/KMeansSeeding.h"

#include <cstdint>
#include <vector>

namespace dropshade {

/// Lloyd's iteration with the boxes of a tree in place of single pixels (Kanungo and others, "An
/// efficient k-means clustering algorithm", 2002): on the way down, a box drops the centres that
/// are nearest to none of its pixels, and when one is left all its pixels belong to that. The
/// result is that of double-precision distances of every pixel to every centre, to the last bit.
class KMeansClustering {
public:
    /// All pixels belong to the first centre at first. The tree must outlive this and not be empty.
    KMeansClustering(const ColorTree& tree, std::vector<Centre> centres);

    /// Assigns every pixel to its nearest centre, the first of those that tie, and then moves each
    /// centre that has pixels to their mean. Whether any pixel changed its centre.
    bool pass();

    [[nodiscard]] const std::vector<Centre>& centres() const { return m_centres; }

    /// The pixels that belong to a centre since the last pass.
    [[nodiscard]] std::int64_t pixelCount(std::size_t centre) const {
        return m_totals[centre].count;
    }

private:
    using CentreIndex = std::int32_t;

    void assignNode(std::uint32_t index, std::size_t first);
    void keepNearest(std::uint32_t index, std::size_t first, std::size_t end);
    [[nodiscard]] CentreIndex rivalOf(std::uint32_t index, std::size_t first,
                                      std::size_t end) const;
    [[nodiscard]] CentreIndex nearest(double red, double green, double blue, std::size_t first,
                                      std::size_t end) const;
    void assignWhole(std::uint32_t index, CentreIndex centre);
    void handDown(std::uint32_t index);
    void assignColors(const ColorTree::Node& node, std::size_t firstCandidate);
    void assignColor(std::uint32_t color, CentreIndex centre);

    const ColorTree& m_tree;
    std::vector<Centre> m_centres;
    /// What the pixels of each centre add up to.
    std::vector<PixelTotals> m_totals;
    /// The centre of all colours of a node, or none where it has to be asked of the nodes below,
    /// and in the end of the colours. Nothing is told to those below until one of them has to know.
    std::vector<CentreIndex> m_centreOfNode;
    std::vector<CentreIndex> m_centreOfColor;
    /// A stack: each node on the way to the current one has its candidates above its parent's.
    std::vector<CentreIndex> m_candidates;
    bool m_changed = false;
};

} // namespace dropshade
