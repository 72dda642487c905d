// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "imagepalette/KMeansClustering.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstring>
#include <limits>
#include <numeric>
#include <utility>

namespace dropshade {

namespace {

constexpr std::int32_t noCentre = -1;

// A squared distance is at most 195,075; these are far above what rounding can add to or take from
// the difference of two of them.
constexpr double doubleMargin = 1e-6;
constexpr float floatMargin = 0.25F;

/// How much farther from `far` than from `near` that point is for which this is least, of a stretch
/// of one channel; as a difference of squared distances along the channel.
double leastExcess(double near, double far, double min, double max) {
    const double toFar = far - near;
    return toFar * (near + far) - 2.0 * std::max(toFar * min, toFar * max);
}

// Four colours side by side. Written out, since compilers make branches of the choices in `add`.
constexpr std::uint32_t lanes = 4;
using Floats = float __attribute__((vector_size(sizeof(float) * lanes)));
using Indices = std::int32_t __attribute__((vector_size(sizeof(std::int32_t) * lanes)));
static_assert(ColorTree::leafSize >= lanes);

template <typename Vector, typename Element>
Vector loaded(const Element* from) {
    Vector vector;
    std::memcpy(&vector, from, sizeof(vector));
    return vector;
}

/// A centre, in single precision, once for each of four colours.
struct CentreLanes {
    CentreLanes(std::int32_t centreIndex, const Centre& centre)
        : red(Floats{} + static_cast<float>(centre.red)),
          green(Floats{} + static_cast<float>(centre.green)),
          blue(Floats{} + static_cast<float>(centre.blue)), index(Indices{} + centreIndex) {}

    Floats red;
    Floats green;
    Floats blue;
    Indices index;
};

/// The nearest of some centres to each of four colours.
class NearestOfFour {
public:
    NearestOfFour(const ColorTree& tree, std::uint32_t firstColor)
        : m_red(loaded<Floats>(tree.red() + firstColor)),
          m_green(loaded<Floats>(tree.green() + firstColor)),
          m_blue(loaded<Floats>(tree.blue() + firstColor)) {}

    void add(const CentreLanes& centre) {
        const Floats dr = m_red - centre.red;
        const Floats dg = m_green - centre.green;
        const Floats db = m_blue - centre.blue;
        const Floats distance = dr * dr + dg * dg + db * db;
        const Floats larger = distance > m_least ? distance : m_least;
        m_second = larger < m_second ? larger : m_second;
        m_best = distance < m_least ? centre.index : m_best;
        m_least = distance < m_least ? distance : m_least;
    }

    std::int32_t best(std::uint32_t lane) const { return m_best[lane]; }

    /// Whether the same centre is the nearest in double precision, whatever the rounding.
    bool isCertain(std::uint32_t lane) const {
        return m_second[lane] - m_least[lane] > floatMargin;
    }

    /// Whether the nearest centres are these, with certainty.
    bool areCertainly(const std::int32_t* centres) const {
        const Indices same = m_best == loaded<Indices>(centres);
        const Indices certain = m_second - m_least > floatMargin;
        const auto both = std::bit_cast<std::array<std::uint64_t, 2>>(same & certain);
        return (both[0] & both[1]) == ~std::uint64_t{0};
    }

private:
    Floats m_red;
    Floats m_green;
    Floats m_blue;
    Floats m_least = Floats{} + std::numeric_limits<float>::max();
    Floats m_second = Floats{} + std::numeric_limits<float>::max();
    Indices m_best{};
};

} // namespace

KMeansClustering::KMeansClustering(const ColorTree& tree, std::vector<Centre> centres)
    : m_tree(tree), m_centres(std::move(centres)), m_totals(m_centres.size()),
      m_centreOfNode(tree.nodes().size(), noCentre), m_centreOfColor(tree.colorCount() + lanes, 0) {
    m_centreOfNode.front() = 0;
    m_totals.front() = tree.nodes().front().totals;
}

bool KMeansClustering::pass() {
    m_changed = false;
    m_candidates.resize(m_centres.size());
    std::iota(m_candidates.begin(), m_candidates.end(), 0);
    assignNode(0, 0);
    for (std::size_t index = 0; index < m_centres.size(); ++index) {
        const PixelTotals& totals = m_totals[index];
        if (totals.count == 0)
            continue;
        const auto count = static_cast<double>(totals.count);
        m_centres[index] = {static_cast<double>(totals.red) / count,
                            static_cast<double>(totals.green) / count,
                            static_cast<double>(totals.blue) / count};
    }
    return m_changed;
}

/// The candidates are those in `m_candidates` from `first` on, in ascending order.
void KMeansClustering::assignNode(std::uint32_t index, std::size_t first) {
    const ColorTree::Node& node = m_tree.nodes()[index];
    const std::size_t end = m_candidates.size();
    keepNearest(index, first, end);
    if (m_candidates.size() == end + 1) {
        assignWhole(index, m_candidates[end]);
    } else {
        handDown(index);
        if (m_tree.isLeaf(index))
            assignColors(node, end);
        for (std::uint32_t child = index + 1; child < node.nextNode;
             child = m_tree.nodes()[child].nextNode)
            assignNode(child, end);
    }
    m_candidates.resize(end);
}

/// Appends those of the candidates from `first` to `end` that may be nearest to some pixel.
void KMeansClustering::keepNearest(std::uint32_t index, std::size_t first, std::size_t end) {
    const ColorTree::Node& node = m_tree.nodes()[index];
    const ColorTree::Corner min = node.min;
    const ColorTree::Corner max = node.max;
    const CentreIndex rival = rivalOf(index, first, end);
    const Centre near = m_centres[static_cast<std::size_t>(rival)];
    m_candidates.resize(end + (end - first));
    CentreIndex* kept = m_candidates.data() + end;
    for (std::size_t at = first; at < end; ++at) {
        const CentreIndex candidate = m_candidates.data()[at];
        const Centre& far = m_centres.data()[candidate];
        const double excess = leastExcess(near.red, far.red, min.red, max.red) +
                              leastExcess(near.green, far.green, min.green, max.green) +
                              leastExcess(near.blue, far.blue, min.blue, max.blue);
        *kept = candidate;
        kept += candidate == rival || excess <= doubleMargin ? 1 : 0;
    }
    m_candidates.resize(static_cast<std::size_t>(kept - m_candidates.data()));
}

/// The candidate to measure the others by. Any would do; one that is near to all pixels of the node
/// drops the most others, and that is mostly the one they belonged to before.
KMeansClustering::CentreIndex KMeansClustering::rivalOf(std::uint32_t index, std::size_t first,
                                                        std::size_t end) const {
    const CentreIndex before = m_centreOfNode[index];
    const CentreIndex* const candidates = m_candidates.data();
    if (before != noCentre &&
        std::find(candidates + first, candidates + end, before) != candidates + end)
        return before;
    const ColorTree::Node& node = m_tree.nodes()[index];
    return nearest((node.min.red + node.max.red) * 0.5, (node.min.green + node.max.green) * 0.5,
                   (node.min.blue + node.max.blue) * 0.5, first, end);
}

KMeansClustering::CentreIndex KMeansClustering::nearest(double red, double green, double blue,
                                                        std::size_t first, std::size_t end) const {
    const CentreIndex* const candidates = m_candidates.data();
    const Centre* const centres = m_centres.data();
    double least = std::numeric_limits<double>::max();
    CentreIndex best = 0;
    for (std::size_t at = first; at < end; ++at) {
        const Centre& centre = centres[candidates[at]];
        const double dr = red - centre.red;
        const double dg = green - centre.green;
        const double db = blue - centre.blue;
        const double distance = dr * dr + dg * dg + db * db;
        if (distance < least) {
            least = distance;
            best = candidates[at];
        }
    }
    return best;
}

void KMeansClustering::assignWhole(std::uint32_t index, CentreIndex centre) {
    CentreIndex& current = m_centreOfNode[index];
    if (current == centre)
        return;
    const ColorTree::Node& node = m_tree.nodes()[index];
    if (current != noCentre) {
        m_totals[static_cast<std::size_t>(current)].subtract(node.totals);
        m_totals[static_cast<std::size_t>(centre)].add(node.totals);
        m_changed = true;
    } else if (m_tree.isLeaf(index)) {
        for (std::uint32_t color = node.firstColor; color < node.endColor; ++color)
            assignColor(color, centre);
    } else {
        for (std::uint32_t child = index + 1; child < node.nextNode;
             child = m_tree.nodes()[child].nextNode)
            assignWhole(child, centre);
    }
    current = centre;
}

/// Tells the children, or the colours of a leaf, what is known of the node as a whole.
void KMeansClustering::handDown(std::uint32_t index) {
    const CentreIndex centre = std::exchange(m_centreOfNode[index], noCentre);
    if (centre == noCentre)
        return;
    const ColorTree::Node& node = m_tree.nodes()[index];
    if (m_tree.isLeaf(index))
        std::fill(m_centreOfColor.begin() + node.firstColor,
                  m_centreOfColor.begin() + node.endColor, centre);
    for (std::uint32_t child = index + 1; child < node.nextNode;
         child = m_tree.nodes()[child].nextNode)
        m_centreOfNode[child] = centre;
}

void KMeansClustering::assignColors(const ColorTree::Node& node, std::size_t firstCandidate) {
    std::vector<CentreLanes> centres;
    centres.reserve(m_candidates.size() - firstCandidate);
    for (std::size_t at = firstCandidate; at < m_candidates.size(); ++at)
        centres.emplace_back(m_candidates[at],
                             m_centres[static_cast<std::size_t>(m_candidates[at])]);
    for (std::uint32_t start = node.firstColor; start < node.endColor; start += lanes) {
        NearestOfFour colors(m_tree, start);
        for (const CentreLanes& centre : centres)
            colors.add(centre);
        if (colors.areCertainly(m_centreOfColor.data() + start))
            continue;
        const std::uint32_t count = std::min(lanes, node.endColor - start);
        for (std::uint32_t lane = 0; lane < count; ++lane) {
            const std::uint32_t color = start + lane;
            assignColor(color,
                        colors.isCertain(lane)
                            ? colors.best(lane)
                            : nearest(m_tree.red()[color], m_tree.green()[color],
                                      m_tree.blue()[color], firstCandidate, m_candidates.size()));
        }
    }
}

void KMeansClustering::assignColor(std::uint32_t color, CentreIndex centre) {
    CentreIndex& current = m_centreOfColor.data()[color];
    if (current == centre)
        return;
    const PixelTotals totals = m_tree.totals(color);
    m_totals[static_cast<std::size_t>(current)].subtract(totals);
    m_totals[static_cast<std::size_t>(centre)].add(totals);
    current = centre;
    m_changed = true;
}

} // namespace dropshade
