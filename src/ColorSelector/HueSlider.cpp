// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "ColorSelector/HueSlider.h"

#include "widgets/Painting.h"

#include <QLinearGradient>

#include <array>

namespace dropshade {

namespace {

constexpr double trackEdge = 2.0;
constexpr std::array<double, 7> hueStops{0.0, 0.167, 0.333, 0.5, 0.667, 0.833, 1.0};

QColor pure(double hue) {
    // A whole turn is no hue to Qt.
    return QColor::fromHsvF(static_cast<float>(hue >= 1.0 ? 0.0 : hue), 1.0F, 1.0F);
}

} // namespace

HueSlider::HueSlider(const Look& look, QWidget* parent)
    //: Name of the hue slider for screen readers
    : BarSelector(look, tr("Hue", "Color selector"), parent) {}

QString HueSlider::spokenValue() const {
    //: Value of the hue slider for screen readers; %1 is a whole number of degrees
    return tr("%1 degrees", "Hue value").arg(qRound(hue() * 360.0));
}

QColor HueSlider::thumbFill() const {
    return pure(hue());
}

void HueSlider::paintTrack(QPainter& painter) {
    const QRectF area(QPointF(0, 0), track().size());
    QLinearGradient gradient(area.topLeft(), area.topRight());
    for (const double stop : hueStops)
        gradient.setColorAt(stop, pure(stop));
    painter.setPen(Qt::NoPen);
    painter.setBrush(gradient);
    painter.drawRoundedRect(area, cornerSize(), cornerSize());
    strokeInside(painter, area, cornerSize(), trackEdge, look().theme().lineTrackBar);
}

} // namespace dropshade
