// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

namespace dropshade {

/// What the loupe points at and how large it shows it. All coordinates are device pixels of one
/// picture of all screens, so that no scale factor can move the point by a rounding.
class LoupeModel {
public:
    /// `bounds` is the picture; a position outside of it is brought to its nearest pixel.
    LoupeModel(const QRect& bounds, const QPoint& position);

    QPoint position() const { return m_position; }
    void moveTo(const QPoint& position);

    /// Edge of one magnified pixel in logical pixels.
    int cellSize() const;
    void zoomIn();
    void zoomOut();

    /// How many cells stand in a row of the loupe at `scale` device pixels to the logical one: odd,
    /// so that one is in the middle, and enough to fill the disc.
    [[nodiscard]] int cellsAcross(double scale) const;

    /// Edge of one magnified pixel in device pixels, whole so that cells are equal and crisp.
    [[nodiscard]] int cellPixels(double scale) const;

private:
    QRect m_bounds;
    QPoint m_position;
    std::size_t m_zoom;
};

} // namespace dropshade
