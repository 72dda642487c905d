// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "loupe/LoupeModel.h"
#include "widgets/Theme.h"

#include <QFont>
#include <QImage>
#include <QRectF>
#include <QString>

class QPainter;

namespace dropshade {

/// One view through the loupe.
struct LoupeScene {
    QImage cells;       ///< Odd and square; the middle pixel is the one pointed at.
    int cellPixels = 0; ///< Edge of a magnified pixel, device pixels.
    QColor color;       ///< Of the middle pixel.
    QString text;       ///< Of the colour, on the plate.
    QPoint position;    ///< Of the pointed-at pixel, device pixels.
    QRect screen;       ///< The screen it is on, device pixels.
};

/// Draws the loupe: the magnified disc around the pointed-at pixel, and the plate with the colour
/// and its text. The plate is beneath the disc, above it where there is no room, and always whole
/// on the screen.
class LoupePicture {
public:
    /// `scale` is device pixels to the logical pixel.
    LoupePicture(const Theme& theme, double scale);

    double scale() const { return m_scale; }

    /// Every device pixel that `paint` may touch lies in here.
    [[nodiscard]] QRect extent(const LoupeScene& scene) const;

    /// `painter` is in device pixels with the origin of `scene.position`'s coordinates.
    void paint(QPainter& painter, const LoupeScene& scene) const;

private:
    [[nodiscard]] QRectF disc(const LoupeScene& scene) const;
    [[nodiscard]] QRectF plate(const LoupeScene& scene) const;
    [[nodiscard]] double plateWidth(const QString& text) const;
    [[nodiscard]] QImage magnified(const LoupeScene& scene) const;
    void paintShadow(QPainter& painter, const QRectF& disc) const;
    void paintDisc(QPainter& painter, const LoupeScene& scene) const;
    void paintFrame(QPainter& painter, const LoupeScene& scene) const;
    void paintTicks(QPainter& painter, const QRectF& disc) const;
    void paintRing(QPainter& painter, const QRectF& disc) const;
    void paintPlate(QPainter& painter, const LoupeScene& scene) const;

    Theme m_theme;
    double m_scale;
    QFont m_font;
};

} // namespace dropshade
