// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "loupe/LoupePicture.h"

#include "loupe/LoupeMetrics.h"
#include "widgets/TypeScale.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>

#include <algorithm>
#include <array>
#include <cmath>

namespace dropshade {

namespace {

/// A rectangle grown by `margin` on every side.
QRectF grown(const QRectF& rect, double margin) {
    return rect.adjusted(-margin, -margin, margin, margin);
}

/// The middle cell, whose top left is a whole pixel however large the cell is.
QRectF middleCell(const LoupeScene& scene) {
    const int before = scene.cellPixels / 2;
    return QRectF(QPointF(scene.position - QPoint(before, before)),
                  QSizeF(scene.cellPixels, scene.cellPixels));
}

} // namespace

LoupePicture::LoupePicture(const Theme& theme, double scale)
    : m_theme(theme), m_scale(scale), m_font(textFont(TextStyle::ValueField, scale)) {}

QRectF LoupePicture::disc(const LoupeScene& scene) const {
    const double diameter = loupe::discDiameter * m_scale;
    const QPointF center = middleCell(scene).center();
    return {center.x() - diameter / 2.0, center.y() - diameter / 2.0, diameter, diameter};
}

double LoupePicture::plateWidth(const QString& text) const {
    const double textWidth = std::ceil(QFontMetricsF(m_font).horizontalAdvance(text));
    return textWidth + (loupe::platePadding + loupe::plateSwatch + loupe::plateTextGap +
                        loupe::plateTextMargin) *
                           m_scale;
}

QRectF LoupePicture::plate(const LoupeScene& scene) const {
    const QPointF center = disc(scene).center();
    const double width = plateWidth(scene.text);
    const double height = loupe::plateHeight * m_scale;
    const double reach = (loupe::outerRadius + loupe::plateGap) * m_scale;
    const QRectF room = grown(QRectF(scene.screen), -loupe::screenMargin * m_scale);

    double top = center.y() + reach;
    if (top + height > room.bottom())
        top = center.y() - reach - height;
    const double left = std::clamp(center.x() - width / 2.0, room.left(),
                                   std::max(room.left(), room.right() - width));
    return {std::round(left), std::round(std::max(top, room.top())), width, height};
}

QRect LoupePicture::extent(const LoupeScene& scene) const {
    const double shadow =
        (loupe::shadowOffset + loupe::shadowBlur + loupe::outerRadius - loupe::discDiameter / 2.0) *
        m_scale;
    const QRectF loupeArea = grown(disc(scene), shadow);
    const QRectF plateArea = grown(plate(scene), 2.0 * loupe::plateEdge * m_scale);
    return grown(loupeArea.united(plateArea), 1.0).toAlignedRect();
}

void LoupePicture::paint(QPainter& painter, const LoupeScene& scene) const {
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF discRect = disc(scene);
    paintShadow(painter, discRect);
    paintDisc(painter, scene);
    paintTicks(painter, discRect);
    paintFrame(painter, scene);
    paintRing(painter, discRect);
    paintPlate(painter, scene);
}

void LoupePicture::paintShadow(QPainter& painter, const QRectF& disc) const {
    const double blur = loupe::shadowBlur * m_scale;
    const double inner = loupe::outerRadius * m_scale - blur;
    const double outer = loupe::outerRadius * m_scale + blur;
    const QPointF center = disc.center() + QPointF(0.0, loupe::shadowOffset * m_scale);

    // The edge of a blurred disc is close to a smooth step across twice the blur's radius.
    QRadialGradient gradient(center, outer);
    constexpr int steps = 8;
    for (int step = 0; step <= steps; ++step) {
        const double along = static_cast<double>(step) / steps;
        const double falling = 1.0 - along * along * (3.0 - 2.0 * along);
        QColor color = m_theme.shadowDrag.color;
        color.setAlphaF(static_cast<float>(color.alphaF() * falling));
        gradient.setColorAt((inner + along * (outer - inner)) / outer, color);
    }
    painter.setPen(Qt::NoPen);
    painter.setBrush(gradient);
    painter.drawEllipse(center, outer, outer);
}

QImage LoupePicture::magnified(const LoupeScene& scene) const {
    const int count = scene.cells.width();
    const int cell = scene.cellPixels;
    QImage image(count * cell, count * cell, QImage::Format_RGB32);
    QPainter painter(&image);
    for (int y = 0; y < count; ++y) {
        for (int x = 0; x < count; ++x) {
            const QRgb pixel = scene.cells.pixel(x, y);
            painter.fillRect(x * cell, y * cell, cell, cell,
                             qAlpha(pixel) == 0 ? m_theme.surfaceSunken : QColor(pixel));
        }
    }
    if (cell < loupe::smallestGridCell * m_scale)
        return image;
    const int line = std::max(1, qRound(m_scale));
    for (int index = 0; index <= count; ++index) {
        const int at = index * cell - line / 2;
        painter.fillRect(at, 0, line, image.height(), m_theme.loupeGrid);
        painter.fillRect(0, at, image.width(), line, m_theme.loupeGrid);
    }
    return image;
}

void LoupePicture::paintDisc(QPainter& painter, const LoupeScene& scene) const {
    const QImage image = magnified(scene);
    const int cellsBefore = scene.cells.width() / 2;
    const int before = cellsBefore * scene.cellPixels;
    const QPointF origin = middleCell(scene).topLeft() - QPointF(before, before);
    QBrush brush(image);
    brush.setTransform(QTransform::fromTranslate(origin.x(), origin.y()));
    painter.setPen(Qt::NoPen);
    painter.setBrush(brush);
    painter.drawEllipse(disc(scene));
}

void LoupePicture::paintFrame(QPainter& painter, const LoupeScene& scene) const {
    const QRectF middle = middleCell(scene);
    const double white = std::max(1.0, std::round(loupe::frameWidth * m_scale));
    const double dark = std::max(1.0, std::round(loupe::frameEdge * m_scale));
    QPainterPath frame;
    frame.setFillRule(Qt::OddEvenFill);
    frame.addRoundedRect(grown(middle, white + dark), dark, dark);
    frame.addRect(middle);
    painter.setPen(Qt::NoPen);
    painter.fillPath(frame, m_theme.loupeInk);
    QPainterPath inner;
    inner.setFillRule(Qt::OddEvenFill);
    inner.addRect(grown(middle, white));
    inner.addRect(middle);
    painter.fillPath(inner, m_theme.loupeRing);
}

void LoupePicture::paintTicks(QPainter& painter, const QRectF& disc) const {
    const QPointF center = disc.center();
    const double outer = disc.width() / 2.0 - loupe::tickInset * m_scale;
    const double inner = outer - loupe::tickLength * m_scale;
    const std::array<QPointF, 4> directions{QPointF(0, -1), QPointF(1, 0), QPointF(0, 1),
                                            QPointF(-1, 0)};
    const auto draw = [&](const QColor& color, double width) {
        painter.setPen(QPen(color, width * m_scale, Qt::SolidLine, Qt::RoundCap));
        for (const QPointF& direction : directions)
            painter.drawLine(center + direction * inner, center + direction * outer);
    };
    draw(m_theme.loupeRing, loupe::tickWidth + 2.0 * loupe::tickHalo);
    draw(m_theme.loupeInk, loupe::tickWidth);
}

void LoupePicture::paintRing(QPainter& painter, const QRectF& disc) const {
    const auto circle = [&](double logicalRadius, double logicalWidth, const QColor& color) {
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(color, logicalWidth * m_scale));
        const double radius = logicalRadius * m_scale;
        painter.drawEllipse(disc.center(), radius, radius);
    };
    const double edge = loupe::edgeWidth;
    const double discRadius = loupe::discDiameter / 2.0;
    circle(discRadius, edge, m_theme.loupeRingEdge);
    circle(discRadius + (edge + loupe::ringWidth) / 2.0, loupe::ringWidth, m_theme.loupeRing);
    circle(loupe::outerRadius - edge / 2.0, edge, m_theme.loupeRingEdge);
}

void LoupePicture::paintPlate(QPainter& painter, const LoupeScene& scene) const {
    const QRectF rect = plate(scene);
    const double edge = loupe::plateEdge * m_scale;
    const double radius = loupe::plateRadius * m_scale;
    const auto outline = [&](double margin, const QColor& color) {
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(color, edge));
        painter.drawRoundedRect(grown(rect, margin), radius + margin, radius + margin);
    };
    painter.setPen(Qt::NoPen);
    painter.setBrush(m_theme.surfacePlate);
    painter.drawRoundedRect(rect, radius, radius);
    outline(1.5 * edge, m_theme.loupePlateOuterEdge);
    outline(0.5 * edge, m_theme.loupePlateInnerEdge);

    const double side = loupe::plateSwatch * m_scale;
    const double padding = loupe::platePadding * m_scale;
    const QRectF swatch(rect.left() + padding, rect.top() + padding, side, side);
    painter.setPen(QPen(m_theme.loupePlateInnerEdge, edge));
    painter.setBrush(scene.color);
    painter.drawRoundedRect(grown(swatch, -edge / 2.0), loupe::plateSwatchRadius * m_scale,
                            loupe::plateSwatchRadius * m_scale);

    painter.setPen(m_theme.textOnPlate);
    painter.setFont(m_font);
    const QRectF textRect(swatch.right() + loupe::plateTextGap * m_scale, rect.top(), rect.width(),
                          rect.height());
    painter.drawText(textRect, Qt::AlignVCenter | Qt::AlignLeft, scene.text);
}

} // namespace dropshade
