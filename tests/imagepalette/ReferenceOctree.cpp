// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "imagepalette/ReferenceQuantizer.h"

#include <algorithm>
#include <array>
#include <memory>

namespace dropshade::ReferenceQuantizer {

namespace {

struct Node {
    std::array<std::unique_ptr<Node>, 8> children;
    std::int64_t rSum = 0;
    std::int64_t gSum = 0;
    std::int64_t bSum = 0;
    std::int64_t pixelCount = 0;
    bool isLeaf = false;
    int level = 0;
};

struct LeafChild {
    int index;
    Node* node;
};

class Octree {
public:
    void insert(Pixel pixel) {
        Node* node = &m_root;
        for (int bit = 7; bit >= 0; --bit) {
            const int index =
                (pixel.red >> bit & 1) * 4 + (pixel.green >> bit & 1) * 2 + (pixel.blue >> bit & 1);
            auto& child = node->children[static_cast<std::size_t>(index)];
            if (!child) {
                child = std::make_unique<Node>();
                child->level = node->level + 1;
                if (child->level <= 7)
                    m_levels[static_cast<std::size_t>(child->level)].push_back(child.get());
            }
            child->rSum += pixel.red;
            child->gSum += pixel.green;
            child->bSum += pixel.blue;
            child->pixelCount += 1;
            node = child.get();
        }
        if (!node->isLeaf) {
            node->isLeaf = true;
            ++m_leafCount;
        }
    }

    void reduce(int k) {
        for (int level = 7; level >= 0 && m_leafCount > k; --level) {
            std::vector<Node*> candidates;
            for (Node* node : m_levels[static_cast<std::size_t>(level)]) {
                if (!node->isLeaf && !leafChildren(*node).empty())
                    candidates.push_back(node);
            }
            std::stable_sort(
                candidates.begin(), candidates.end(),
                [](const Node* a, const Node* b) { return a->pixelCount < b->pixelCount; });
            for (Node* candidate : candidates) {
                if (m_leafCount <= k)
                    return;
                reduceNode(*candidate, k);
            }
        }
    }

    std::vector<QuantizedColor> collect() const {
        std::vector<QuantizedColor> colors;
        collect(m_root, colors);
        return colors;
    }

    int leafCount() const { return m_leafCount; }

private:
    static std::vector<LeafChild> leafChildren(const Node& node) {
        std::vector<LeafChild> leaves;
        for (int index = 0; index < 8; ++index) {
            Node* child = node.children[static_cast<std::size_t>(index)].get();
            if (child && child->isLeaf)
                leaves.push_back({index, child});
        }
        return leaves;
    }

    static bool hasInnerChild(const Node& node) {
        return std::any_of(node.children.begin(), node.children.end(),
                           [](const auto& child) { return child && !child->isLeaf; });
    }

    void reduceNode(Node& candidate, int k) {
        std::vector<LeafChild> leaves = leafChildren(candidate);
        const bool inner = hasInnerChild(candidate);
        const int leafTotal = static_cast<int>(leaves.size());
        if (leafTotal == 0)
            return;
        const int excess = m_leafCount - k;
        if (!inner && excess >= leafTotal - 1) {
            for (auto& child : candidate.children)
                child.reset();
            candidate.isLeaf = true;
            m_leafCount -= leafTotal - 1;
            return;
        }
        if (inner && leafTotal == 1)
            return;
        const int merges = inner ? std::min(excess, leafTotal - 1) : excess;
        std::stable_sort(leaves.begin(), leaves.end(), [](const LeafChild& a, const LeafChild& b) {
            return a.node->pixelCount < b.node->pixelCount;
        });
        Node& target = *leaves.front().node;
        for (int at = 1; at <= merges; ++at) {
            const LeafChild& merged = leaves[static_cast<std::size_t>(at)];
            target.rSum += merged.node->rSum;
            target.gSum += merged.node->gSum;
            target.bSum += merged.node->bSum;
            target.pixelCount += merged.node->pixelCount;
            candidate.children[static_cast<std::size_t>(merged.index)].reset();
        }
        m_leafCount -= merges;
    }

    static void collect(const Node& node, std::vector<QuantizedColor>& colors) {
        const auto mean = [&node](std::int64_t sum) {
            return static_cast<std::uint8_t>(
                std::clamp<std::int64_t>(sum / node.pixelCount, 0, 255));
        };
        if (node.isLeaf && node.pixelCount >= 1) {
            colors.push_back({mean(node.rSum), mean(node.gSum), mean(node.bSum), node.pixelCount});
            return;
        }
        for (const auto& child : node.children) {
            if (child)
                collect(*child, colors);
        }
    }

    Node m_root;
    std::array<std::vector<Node*>, 8> m_levels;
    int m_leafCount = 0;
};

} // namespace

std::vector<QuantizedColor> octree(std::span<const Pixel> pixels, int k) {
    Octree tree;
    for (const Pixel pixel : pixels)
        tree.insert(pixel);
    if (tree.leafCount() > k)
        tree.reduce(k);
    std::vector<QuantizedColor> colors = tree.collect();
    if (colors.size() > static_cast<std::size_t>(k)) {
        std::stable_sort(
            colors.begin(), colors.end(),
            [](const QuantizedColor& a, const QuantizedColor& b) { return a.count > b.count; });
        colors.resize(static_cast<std::size_t>(k));
    }
    return colors;
}

} // namespace dropshade::ReferenceQuantizer
