// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "imagepalette/StripSwatch.h"

#include "widgets/Metrics.h"
#include "widgets/Painting.h"

#include <QKeyEvent>

#include <utility>

namespace dropshade {

StripSwatch::StripSwatch(const Look& look, const NameOf& nameOf, QWidget* parent)
    : Button(look, parent), m_nameOf(nameOf) {
    setCornerRadius(metrics::radiusCell);
    setFocusPolicy(Qt::NoFocus);
    setCursor(Qt::PointingHandCursor);
}

void StripSwatch::setColor(const QuantizedColor& color) {
    if (color == m_color && !accessibleName().isEmpty())
        return;
    m_color = color;
    setAccessibleName(m_nameOf(color));
    setToolTip(QString());
    update();
}

bool StripSwatch::event(QEvent* event) {
    // The format may have changed since the colour came.
    if (event->type() == QEvent::HoverEnter || event->type() == QEvent::HoverMove)
        setToolTip(m_nameOf(m_color));
    return Button::event(event);
}

void StripSwatch::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
        // A button would go to the next control; the strip knows the next colour.
        event->ignore();
        break;
    default:
        Button::keyPressEvent(event);
    }
}

void StripSwatch::paint(QPainter& painter) {
    // The ring lies outside, on the strip; each step of its appearance passes here. Nothing else
    // may have the strip drawn, which draws its swatches, too.
    if (std::exchange(m_ringDrawn, ringOpacity()) != ringOpacity())
        parentWidget()->update();
    QRectF area = rect();
    if (isPressed()) {
        const double inset = area.height() * (1.0 - metrics::swatchPressedScale) / 2.0;
        area.adjust(inset, inset, -inset, -inset);
    }
    drawColor(painter, area, metrics::radiusCell, QColor(m_color.r, m_color.g, m_color.b), theme());
}

} // namespace dropshade
