// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "imagepalette/ColorTree.h"

#include <algorithm>
#include <array>
#include <utility>

namespace dropshade {

namespace {

constexpr int keyBits = 24;
constexpr int octantBits = 3;

constexpr std::array<std::uint32_t, 256> makeSpreadTable() {
    std::array<std::uint32_t, 256> table{};
    for (std::uint32_t value = 0; value < table.size(); ++value) {
        for (std::uint32_t bit = 0; bit < 8; ++bit)
            table[value] |= (value >> bit & 1) << (octantBits * bit);
    }
    return table;
}

// The bits of a byte, two zeros between each and the next.
constexpr std::array<std::uint32_t, 256> spread = makeSpreadTable();

/// The octants of the colour in the cube of all colours, from the largest to the smallest (Morton's
/// order): colours that are near in it are near in the cube.
std::uint32_t keyOf(Pixel pixel) {
    return spread[pixel.red] << 2 | spread[pixel.green] << 1 | spread[pixel.blue];
}

std::uint8_t gathered(std::uint32_t key) {
    std::uint32_t bits = key & 0x249249;
    bits = (bits | bits >> 2) & 0x0C30C3;
    bits = (bits | bits >> 4) & 0x00F00F;
    bits = (bits | bits >> 8) & 0x0000FF;
    return static_cast<std::uint8_t>(bits);
}

Pixel pixelOf(std::uint32_t key) {
    return {gathered(key >> 2), gathered(key >> 1), gathered(key)};
}

/// One pass of a radix sort: `from` to `to`, ascending by 12 bits, stable.
void sortByDigit(int shift, const std::vector<std::uint32_t>& from,
                 std::vector<std::uint32_t>& to) {
    constexpr std::uint32_t digitMask = 0xFFF;
    std::array<std::uint32_t, digitMask + 1> next{};
    for (const std::uint32_t key : from)
        ++next[key >> shift & digitMask];
    std::uint32_t start = 0;
    for (std::uint32_t& entry : next)
        start += std::exchange(entry, start);
    for (const std::uint32_t key : from)
        to.data()[next[key >> shift & digitMask]++] = key;
}

void extend(ColorTree::Node& node, const ColorTree::Corner& min, const ColorTree::Corner& max) {
    node.min.red = std::min(node.min.red, min.red);
    node.min.green = std::min(node.min.green, min.green);
    node.min.blue = std::min(node.min.blue, min.blue);
    node.max.red = std::max(node.max.red, max.red);
    node.max.green = std::max(node.max.green, max.green);
    node.max.blue = std::max(node.max.blue, max.blue);
}

} // namespace

ColorTree::ColorTree(std::span<const Pixel> pixels) {
    collectColors(pixels);
    m_nodes.reserve(m_keys.size() / 4 + 1);
    if (!m_keys.empty())
        addNode(0, colorCount(), keyBits - octantBits);
}

void ColorTree::collectColors(std::span<const Pixel> pixels) {
    std::vector<std::uint32_t> keys(pixels.size());
    std::transform(pixels.begin(), pixels.end(), keys.begin(), keyOf);
    m_keys.resize(keys.size());
    sortByDigit(0, keys, m_keys);
    sortByDigit(12, m_keys, keys);

    m_keys.clear();
    for (const std::uint32_t key : keys) {
        if (m_keys.empty() || m_keys.back() != key) {
            m_keys.push_back(key);
            m_counts.push_back(0);
        }
        ++m_counts.back();
    }
    for (std::vector<float>* channel : {&m_red, &m_green, &m_blue})
        channel->resize(m_keys.size() + leafSize);
    for (std::size_t at = 0; at < m_keys.size(); ++at) {
        const Pixel pixel = pixelOf(m_keys[at]);
        m_red[at] = pixel.red;
        m_green[at] = pixel.green;
        m_blue[at] = pixel.blue;
    }
}

void ColorTree::addNode(std::uint32_t firstColor, std::uint32_t endColor, int bit) {
    const auto index = static_cast<std::uint32_t>(m_nodes.size());
    Node& node = m_nodes.emplace_back();
    node.firstColor = firstColor;
    node.endColor = endColor;
    node.nextNode = index + 1;
    if (endColor - firstColor <= leafSize) {
        fillLeaf(node);
        return;
    }
    // Steps over the octants that all the colours share.
    while (m_keys[firstColor] >> bit == m_keys[endColor - 1] >> bit)
        bit -= octantBits;
    while (firstColor < endColor) {
        const std::uint32_t octantEnd = ((m_keys[firstColor] >> bit) + 1) << bit;
        const auto next =
            std::lower_bound(m_keys.begin() + firstColor, m_keys.begin() + endColor, octantEnd);
        const auto childEnd = static_cast<std::uint32_t>(next - m_keys.begin());
        addNode(firstColor, childEnd, bit - octantBits);
        firstColor = childEnd;
    }
    m_nodes[index].nextNode = static_cast<std::uint32_t>(m_nodes.size());
    fillFromChildren(index);
}

void ColorTree::fillLeaf(Node& node) const {
    for (std::uint32_t at = node.firstColor; at < node.endColor; ++at) {
        const Corner color{m_red.data()[at], m_green.data()[at], m_blue.data()[at]};
        extend(node, color, color);
        node.totals.add(totals(at));
    }
}

void ColorTree::fillFromChildren(std::uint32_t index) {
    Node& node = m_nodes[index];
    for (std::uint32_t child = index + 1; child < node.nextNode; child = m_nodes[child].nextNode) {
        extend(node, m_nodes[child].min, m_nodes[child].max);
        node.totals.add(m_nodes[child].totals);
    }
}

} // namespace dropshade
