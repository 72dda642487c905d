// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "palettes/SwatchPainting.h"

#include "widgets/ColorConversion.h"
#include "widgets/Metrics.h"
#include "widgets/Painting.h"

#include <QPainterPath>

#include <cmath>

namespace dropshade {
namespace {

constexpr double phantomLine = 1.5;

} // namespace

void drawIcon(QPainter& painter, Icon icon, const QColor& ink, const QPointF& center, int side) {
    const double ratio = painter.device()->devicePixelRatioF();
    const QPixmap pixmap = iconPixmap(icon, ink, side, ratio);
    const QPointF corner = center - QPointF(side, side) / 2.0;
    painter.drawPixmap(
        QPointF(std::round(corner.x() * ratio), std::round(corner.y() * ratio)) / ratio, pixmap);
}

void drawSwatch(QPainter& painter, const QRectF& area, const PaletteSwatch& swatch, bool isFavorite,
                const Theme& theme) {
    drawColor(painter, area, metrics::radiusCell, drawable(swatch.color()), theme);
    if (isFavorite)
        drawIcon(painter, Icon::StarFill, drawable(swatch.pinTint()), area.center(),
                 qRound(area.width() * metrics::favouriteScale));
}

void drawSpine(QPainter& painter, const QRectF& area, const QList<PaletteSwatch>& swatches,
               const Theme& theme) {
    QPainterPath outline;
    outline.addRoundedRect(area, metrics::radiusCell, metrics::radiusCell);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setClipPath(outline, Qt::IntersectClip);
    const double chip = area.width() / double(swatches.size());
    for (qsizetype index = 0; index < swatches.size(); ++index)
        painter.fillRect(
            QRectF(area.left() + chip * double(index), area.top(), chip, area.height()),
            drawable(swatches.at(index).color()));
    painter.restore();
    strokeEdge(painter, area, metrics::radiusCell, theme.lineSwatch);
}

void drawPhantom(QPainter& painter, const QRectF& area, const Theme& theme) {
    fillRounded(painter, area, metrics::radiusCell, theme.accentSoft);
    QPen pen(theme.accentBase, phantomLine);
    pen.setDashPattern({2.0, 2.0});
    pen.setCapStyle(Qt::FlatCap);
    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
    constexpr double half = phantomLine / 2.0;
    painter.drawRoundedRect(area.adjusted(half, half, -half, -half), metrics::radiusCell - half,
                            metrics::radiusCell - half);
}

} // namespace dropshade
