// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "widgets/Painting.h"

#include "widgets/Metrics.h"

#include <QFontMetricsF>
#include <QPainterPath>
#include <QPen>

#include <algorithm>
#include <cmath>

namespace dropshade {

namespace {

constexpr int previewSquare = 6;
constexpr double dashLength = 6.0;

QPainterPath rounded(const QRectF& area, double radius) {
    QPainterPath path;
    path.addRoundedRect(area, radius, radius);
    return path;
}

} // namespace

double hairlineWidth(const QPainter& painter) {
    return 1.0 / painter.device()->devicePixelRatioF();
}

void fillRounded(QPainter& painter, const QRectF& area, double radius, const QColor& color) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawRoundedRect(area, radius, radius);
}

void strokeInside(QPainter& painter, const QRectF& area, double radius, double width,
                  const QColor& color) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(color, width));
    painter.setBrush(Qt::NoBrush);
    const double half = width / 2.0;
    const double inner = std::max(0.0, radius - half);
    painter.drawRoundedRect(area.adjusted(half, half, -half, -half), inner, inner);
}

void strokeEdge(QPainter& painter, const QRectF& area, double radius, const QColor& color) {
    strokeInside(painter, area, radius, hairlineWidth(painter), color);
}

void drawFocusRing(QPainter& painter, const QRectF& control, double radius, const Theme& theme) {
    constexpr double reach = metrics::focusGap + metrics::focusWidth;
    strokeInside(painter, control.adjusted(-reach, -reach, reach, reach), radius + reach,
                 metrics::focusWidth, theme.accentBase);
}

void drawTick(QPainter& painter, const QRectF& row, const Theme& theme) {
    fillRounded(painter,
                QRectF(row.left(), row.top() + metrics::tickInset, metrics::tickWidth,
                       row.height() - 2.0 * metrics::tickInset),
                metrics::tickRadius, theme.accentBase);
}

void drawCheckerboard(QPainter& painter, const QRectF& area, int side, const Theme& theme) {
    const int columns = static_cast<int>(area.width()) / side + 1;
    const int rows = static_cast<int>(area.height()) / side + 1;
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; ++column) {
            const QRectF square(area.left() + column * side, area.top() + row * side, side, side);
            painter.fillRect(square.intersected(area),
                             (row + column) % 2 == 0 ? theme.checkerLight : theme.checkerDark);
        }
    }
}

void drawColor(QPainter& painter, const QRectF& area, double radius, const QColor& color,
               const Theme& theme) {
    if (color.alpha() < 255) {
        painter.save();
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setClipPath(rounded(area, radius));
        painter.setRenderHint(QPainter::Antialiasing, false);
        drawCheckerboard(painter, area, previewSquare, theme);
        painter.restore();
    }
    fillRounded(painter, area, radius, color);
    strokeEdge(painter, area, radius, theme.lineSwatch);
}

void drawNoColor(QPainter& painter, const QRectF& area, double radius, const Theme& theme) {
    strokeEdge(painter, area, radius, theme.lineEdge);
    painter.setPen(QPen(theme.lineControl, hairlineWidth(painter)));
    const double inset = radius * 0.3;
    painter.drawLine(area.topLeft() + QPointF(inset, inset),
                     area.bottomRight() - QPointF(inset, inset));
}

void drawDropZone(QPainter& painter, const QRectF& zone, const Theme& theme, bool isTargeted,
                  const QColor& ground) {
    const double width = isTargeted ? metrics::lineSelected : metrics::lineHairline;
    fillRounded(painter, zone, metrics::radiusSurface, isTargeted ? theme.accentFaint : ground);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    QPen pen(isTargeted ? theme.accentBase : theme.lineControl, width);
    pen.setDashPattern({dashLength / width, dashLength / width});
    pen.setCapStyle(Qt::FlatCap);
    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
    const double half = width / 2.0;
    painter.drawRoundedRect(zone.adjusted(half, half, -half, -half), metrics::radiusSurface - half,
                            metrics::radiusSurface - half);
    painter.restore();
}

void drawWords(QPainter& painter, const QFont& font, const QRectF& area, const QString& words) {
    const QFontMetricsF measures(font, painter.device());
    const double top = area.center().y() - (measures.ascent() + measures.descent()) / 2.0;
    painter.setFont(font);
    painter.drawText(QPointF(area.left(), std::round(top + measures.ascent())),
                     measures.elidedText(words, Qt::ElideRight, area.width()));
}

void drawShadow(QPainter& painter, const QRectF& area, double radius, const Shadow& shadow) {
    // Rings from the outside in, each over the ones before it; their sum is close to the smooth
    // step that a Gaussian blur makes of an edge.
    const double reach = shadow.blur;
    const int rings = std::max(1, static_cast<int>(reach));
    const QRectF base = area.translated(0.0, shadow.offset);
    double painted = 0.0;
    for (int ring = 0; ring < rings; ++ring) {
        const double along = (ring + 1.0) / rings;
        const double wanted = shadow.color.alphaF() * along * along * (3.0 - 2.0 * along);
        QColor color = shadow.color;
        color.setAlphaF(static_cast<float>((wanted - painted) / (1.0 - painted)));
        painted = wanted;
        const double grow = reach / 2.0 - reach * along;
        const double corner = std::max(1.0, radius + grow);
        fillRounded(painter, base.adjusted(-grow, -grow, grow, grow), corner, color);
    }
}

int popupShadowReach(const Theme& theme) {
    double reach = 0.0;
    for (const Shadow& shadow : theme.shadowPopup)
        reach = std::max(reach, shadow.offset + shadow.blur / 2.0);
    return static_cast<int>(std::ceil(reach));
}

QColor blended(const QColor& below, const QColor& above, double amount) {
    const double alpha = above.alphaF() * amount;
    const double rest = below.alphaF() * (1.0 - alpha);
    const double sum = alpha + rest;
    if (sum <= 0.0)
        return Qt::transparent;
    const auto mix = [&](double first, double second) {
        return static_cast<float>((second * alpha + first * rest) / sum);
    };
    return QColor::fromRgbF(mix(below.redF(), above.redF()), mix(below.greenF(), above.greenF()),
                            mix(below.blueF(), above.blueF()), static_cast<float>(sum));
}

} // namespace dropshade
