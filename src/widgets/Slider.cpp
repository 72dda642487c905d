// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "widgets/Slider.h"

#include "widgets/Metrics.h"
#include "widgets/Painting.h"

#include <QMouseEvent>

#include <algorithm>
#include <cmath>

namespace dropshade {

namespace {

constexpr double trackWidth = 2.0;
constexpr double thumbOutline = 1.5;
constexpr double markLength = 4.0;
constexpr double markGap = 4.0;
constexpr double halo = 4.0;
/// With more steps than these, marks would be a grey bar.
constexpr int mostMarks = 24;

} // namespace

Slider::Slider(const Look& look, const QString& name, QWidget* parent)
    : QSlider(Qt::Horizontal, parent), m_look(look) {
    setAccessibleName(name);
    setAttribute(Qt::WA_Hover);
    setFocusPolicy(Qt::TabFocus);
    connect(&look, &Look::didChange, this, qOverload<>(&QWidget::update));
}

QSize Slider::sizeHint() const {
    return {11 * metrics::space16, metrics::thumb + 2 * static_cast<int>(halo)};
}

QSize Slider::minimumSizeHint() const {
    return {4 * metrics::space16, sizeHint().height()};
}

double Slider::positionOf(int shown) const {
    const double margin = metrics::thumb / 2.0 + halo;
    const int range = std::max(1, maximum() - minimum());
    const double share = static_cast<double>(shown - minimum()) / range;
    return margin + share * (width() - 2.0 * margin);
}

int Slider::valueAt(double x) const {
    const double margin = metrics::thumb / 2.0 + halo;
    const double room = std::max(1.0, width() - 2.0 * margin);
    const double share = std::clamp((x - margin) / room, 0.0, 1.0);
    return minimum() + static_cast<int>(std::lround(share * (maximum() - minimum())));
}

bool Slider::event(QEvent* event) {
    m_hover.follow(*event);
    return QSlider::event(event);
}

void Slider::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    paintTrack(painter);
    paintThumb(painter);
}

void Slider::paintTrack(QPainter& painter) const {
    const Theme& theme = m_look.theme();
    if (!isEnabled())
        painter.setOpacity(0.5);
    const double middle = height() / 2.0;
    const double left = positionOf(minimum());
    const double right = positionOf(maximum());
    fillRounded(painter, QRectF(left, middle - trackWidth / 2.0, right - left, trackWidth),
                trackWidth / 2.0, theme.lineControl);
    const int steps = std::max(1, maximum() - minimum());
    if (steps > mostMarks)
        return;
    for (int step = 0; step <= steps; ++step) {
        const double x = std::round(positionOf(minimum() + step)) - 0.5;
        painter.fillRect(QRectF(x, middle + markGap, 1.0, markLength), theme.lineControl);
    }
}

void Slider::paintThumb(QPainter& painter) const {
    const Theme& theme = m_look.theme();
    const double radius = metrics::thumb / 2.0;
    const QPointF center(positionOf(value()), height() / 2.0);
    const QRectF thumb(center.x() - radius, center.y() - radius, 2.0 * radius, 2.0 * radius);
    painter.setOpacity(1.0);
    if (!isEnabled()) {
        fillRounded(painter, thumb, radius, theme.surfaceWindow);
        strokeInside(painter, thumb, radius, thumbOutline, theme.textTertiary);
        return;
    }
    fillRounded(painter, thumb.adjusted(-halo, -halo, halo, halo), radius + halo,
                blended(Qt::transparent, theme.fillHover, m_hover.value()));
    fillRounded(painter, thumb, radius, isSliderDown() ? theme.textPrimary : theme.surfaceButton);
    strokeInside(painter, thumb, radius, thumbOutline, theme.textPrimary);
    if (hasFocus())
        drawFocusRing(painter, thumb, radius, theme);
}

void Slider::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    setSliderDown(true);
    setValue(valueAt(event->position().x()));
    update();
}

void Slider::mouseMoveEvent(QMouseEvent* event) {
    if (isSliderDown())
        setValue(valueAt(event->position().x()));
}

void Slider::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton)
        setSliderDown(false);
    update();
}

void Slider::wheelEvent(QWheelEvent* event) {
    event->ignore();
}

} // namespace dropshade
