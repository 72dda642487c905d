// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "ColorSelector/Saturation.h"

#include "widgets/Metrics.h"
#include "widgets/Painting.h"

#include <QLinearGradient>

#include <algorithm>

namespace dropshade {

namespace {

constexpr double trackEdge = 2.0;

QColor gray(double level, double alpha) {
    const auto value = static_cast<float>(level);
    return QColor::fromRgbF(value, value, value, static_cast<float>(alpha));
}

} // namespace

Saturation::Saturation(const Look& look, QWidget* parent)
    //: Name of the square that selects saturation and brightness, for screen readers
    : Selector(look, tr("Saturation and brightness", "Color selector"), parent) {}

int Saturation::reach() const {
    // Its thumb may stick out by half.
    return static_cast<int>(pointSize() / 2.0) + metrics::focusReach;
}

void Saturation::setValue(double saturation, double brightness) {
    const selector::SquareValue value{saturation, brightness};
    if (value == m_value)
        return;
    m_value = value;
    valueChanged();
}

void Saturation::setHue(double hue) {
    if (hue == m_hue)
        return;
    m_hue = hue;
    m_square = QPixmap();
    update();
}

QString Saturation::spokenValue() const {
    //: Value of the square for screen readers; %1 and %2 are whole numbers
    return tr("saturation %1 percent, brightness %2 percent", "Saturation square value")
        .arg(qRound(m_value.saturation * 100.0))
        .arg(qRound(m_value.brightness * 100.0));
}

void Saturation::userSet(const selector::SquareValue& value) {
    if (value == m_value)
        return;
    setValue(value.saturation, value.brightness);
    Q_EMIT valueChangedByUser(value.saturation, value.brightness);
}

void Saturation::userSetMainValue(double value) {
    userSet({std::clamp(value, 0.0, 1.0), m_value.brightness});
}

void Saturation::pointAt(const QPointF& place) {
    const QRectF area = track();
    userSet(selector::squareValue(place.x(), place.y(), area.width(), area.height()));
}

void Saturation::step(double alongX, double alongY) {
    selector::SquareValue value = m_value;
    if (alongX != 0.0)
        value.saturation = selector::stepped(value.saturation, alongX);
    if (alongY != 0.0)
        value.brightness = selector::stepped(value.brightness, alongY);
    userSet(value);
}

void Saturation::jump(bool toEnd) {
    userSet({toEnd ? 1.0 : 0.0, m_value.brightness});
}

QPointF Saturation::thumbCenter() const {
    const QRectF area = track();
    const selector::Place place = selector::squareThumb(m_value, area.width(), area.height());
    return {place.x, place.y};
}

QColor Saturation::thumbFill() const {
    return QColor::fromHsvF(static_cast<float>(m_hue >= 1.0 ? 0.0 : m_hue),
                            static_cast<float>(m_value.saturation),
                            static_cast<float>(m_value.brightness));
}

QPixmap Saturation::drawnSquare(const QSize& size, double ratio) const {
    QPixmap square(size * ratio);
    square.setDevicePixelRatio(ratio);
    square.fill(Qt::transparent);
    QPainter painter(&square);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    const QRectF area(QPointF(0, 0), QSizeF(size));
    const auto hue = static_cast<float>(m_hue >= 1.0 ? 0.0 : m_hue);
    QLinearGradient across(area.topLeft(), area.topRight());
    across.setColorAt(0.0, QColor::fromHsvF(hue, 0.0F, 1.0F));
    across.setColorAt(1.0, QColor::fromHsvF(hue, 1.0F, 1.0F));
    QLinearGradient down(area.topLeft(), area.bottomLeft());
    down.setColorAt(0.0, gray(0.6, 0.0));
    down.setColorAt(0.4, gray(0.6, 0.5));
    down.setColorAt(1.0, gray(0.05, 1.0));
    for (const QLinearGradient& gradient : {across, down}) {
        painter.setBrush(gradient);
        painter.drawRoundedRect(area, cornerSize(), cornerSize());
    }
    return square;
}

void Saturation::paintTrack(QPainter& painter) {
    const QSize size = track().size().toSize();
    const double ratio = devicePixelRatioF();
    if (m_square.size() != size * ratio)
        m_square = drawnSquare(size, ratio);
    painter.drawPixmap(0, 0, m_square);
    strokeInside(painter, QRectF(QPointF(0, 0), QSizeF(size)), cornerSize(), trackEdge,
                 look().theme().lineTrackSquare);
}

} // namespace dropshade
