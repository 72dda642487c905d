// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "ColorSelector/Selector.h"

#include "ColorSelector/AccessibleSelector.h"
#include "ColorSelector/SelectorGeometry.h"
#include "widgets/Metrics.h"
#include "widgets/Painting.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QMouseEvent>

namespace dropshade {

namespace {

constexpr double ringWidth = 2.0;
/// Half of it lies under the thumb.
constexpr double outerRingWidth = 4.0;

} // namespace

Selector::Selector(const Look& look, const QString& name, QWidget* parent)
    : QWidget(parent), m_look(look) {
    installAccessibleSelectors();
    setAccessibleName(name);
    setFocusPolicy(Qt::TabFocus);
    connect(&look, &Look::didChange, this, qOverload<>(&QWidget::update));
}

void Selector::setPointSize(double size) {
    m_pointSize = size;
    update();
}

void Selector::setCornerSize(double radius) {
    m_cornerSize = radius;
    update();
}

QRectF Selector::track() const {
    const double margin = reach();
    return QRectF(rect()).adjusted(margin, margin, -margin, -margin);
}

void Selector::valueChanged() {
    update();
    if (QAccessible::isActive()) {
        QAccessibleValueChangeEvent event(this, mainValue());
        QAccessible::updateAccessibility(&event);
    }
}

void Selector::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(track().topLeft());
    paintTrack(painter);
    const double radius = m_pointSize / 2.0;
    const QPointF center = thumbCenter();
    const QRectF thumb(center.x() - radius, center.y() - radius, m_pointSize, m_pointSize);
    const Theme& theme = m_look.theme();
    const double out = outerRingWidth / 2.0;
    if (hasFocus())
        drawFocusRing(painter, thumb, radius, theme);
    else
        strokeInside(painter, thumb.adjusted(-out, -out, out, out), radius + out, outerRingWidth,
                     theme.lineTrackBar);
    fillRounded(painter, thumb, radius, thumbFill());
    strokeInside(painter, thumb, radius, ringWidth, theme.thumbRing);
}

void Selector::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    m_isDragging = true;
    pointAt(event->position() - track().topLeft());
}

void Selector::mouseMoveEvent(QMouseEvent* event) {
    if (m_isDragging)
        pointAt(event->position() - track().topLeft());
}

void Selector::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton)
        m_isDragging = false;
}

void Selector::keyPressEvent(QKeyEvent* event) {
    const double by =
        event->modifiers().testFlag(Qt::ShiftModifier) ? selector::largeStep : selector::step;
    switch (event->key()) {
    case Qt::Key_Left:
        step(-by, 0.0);
        break;
    case Qt::Key_Right:
        step(by, 0.0);
        break;
    case Qt::Key_Up:
        step(0.0, by);
        break;
    case Qt::Key_Down:
        step(0.0, -by);
        break;
    case Qt::Key_Home:
        jump(false);
        break;
    case Qt::Key_End:
        jump(true);
        break;
    default:
        QWidget::keyPressEvent(event);
    }
}

} // namespace dropshade
