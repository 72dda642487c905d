// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "loupe/LoupeModel.h"

#include "loupe/LoupeMetrics.h"

#include <algorithm>
#include <array>

namespace dropshade {

namespace {

constexpr std::array<int, 7> cellSizes{4, 6, 8, 12, 16, 24, 36};
constexpr std::size_t usualZoom = 3;

} // namespace

LoupeModel::LoupeModel(const QRect& bounds, const QPoint& position)
    : m_bounds(bounds), m_zoom(usualZoom) {
    moveTo(position);
}

void LoupeModel::moveTo(const QPoint& position) {
    m_position = QPoint(std::clamp(position.x(), m_bounds.left(), m_bounds.right()),
                        std::clamp(position.y(), m_bounds.top(), m_bounds.bottom()));
}

int LoupeModel::cellSize() const {
    return cellSizes[m_zoom];
}

void LoupeModel::zoomIn() {
    m_zoom = std::min(m_zoom + 1, cellSizes.size() - 1);
}

void LoupeModel::zoomOut() {
    m_zoom = m_zoom == 0 ? 0 : m_zoom - 1;
}

int LoupeModel::cellPixels(double scale) const {
    return std::max(1, qRound(cellSize() * scale));
}

int LoupeModel::cellsAcross(double scale) const {
    const int disc = qRound(loupe::discDiameter * scale);
    const int cell = cellPixels(scale);
    const int beside = (disc - cell + 2 * cell - 1) / (2 * cell);
    return 2 * std::max(0, beside) + 1;
}

} // namespace dropshade
