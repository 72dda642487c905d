// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "ColorSelector/AlphaSlider.h"

#include "widgets/Painting.h"

#include <QLinearGradient>
#include <QPainterPath>

namespace dropshade {

namespace {

constexpr double trackEdge = 2.0;
constexpr int squareSize = 4;

QColor withAlpha(QColor color, double alpha) {
    color.setAlphaF(static_cast<float>(alpha));
    return color;
}

} // namespace

AlphaSlider::AlphaSlider(const Look& look, QWidget* parent)
    //: Name of the alpha slider for screen readers
    : BarSelector(look, tr("Opacity", "Color selector"), parent) {}

void AlphaSlider::setColor(double hue, double saturation, double brightness) {
    const QColor color =
        QColor::fromHsvF(static_cast<float>(hue >= 1.0 ? 0.0 : hue), static_cast<float>(saturation),
                         static_cast<float>(brightness));
    if (color == m_color)
        return;
    m_color = color;
    update();
}

QString AlphaSlider::spokenValue() const {
    //: Value of the alpha slider for screen readers; %1 is a whole number
    return tr("%1 percent", "Opacity value").arg(qRound(alpha() * 100.0));
}

QColor AlphaSlider::thumbFill() const {
    return withAlpha(m_color, alpha());
}

void AlphaSlider::paintTrack(QPainter& painter) {
    const QRectF area(QPointF(0, 0), track().size());
    QPainterPath shape;
    shape.addRoundedRect(area, cornerSize(), cornerSize());
    painter.save();
    painter.setClipPath(shape);
    painter.setRenderHint(QPainter::Antialiasing, false);
    drawCheckerboard(painter, area, squareSize, look().theme());
    painter.restore();
    QLinearGradient gradient(area.topLeft(), area.topRight());
    gradient.setColorAt(0.0, withAlpha(m_color, 0.0));
    gradient.setColorAt(1.0, m_color);
    painter.fillPath(shape, gradient);
    strokeInside(painter, area, cornerSize(), trackEdge, look().theme().lineTrackBar);
}

} // namespace dropshade
