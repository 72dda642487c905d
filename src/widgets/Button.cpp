// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "widgets/Button.h"

#include "widgets/FocusRing.h"
#include "widgets/Metrics.h"
#include "widgets/Painting.h"
#include "widgets/ToolTip.h"

namespace dropshade {

Button::Button(const Look& look, QWidget* parent)
    : QPushButton(parent), m_look(look), m_cornerRadius(metrics::radiusControl) {
    setAttribute(Qt::WA_Hover);
    setFocusPolicy(Qt::TabFocus);
    setAutoDefault(false);
    setFocusRadius(*this, m_cornerRadius);
    ToolTip::installOn(*this, look);
    connect(&look, &Look::didChange, this, qOverload<>(&QWidget::update));
}

QColor Button::filled(const QColor& ground) const {
    if (isPressed())
        return blended(ground, theme().fillPressed);
    return blended(ground, theme().fillHover, hoverAmount());
}

void Button::setCornerRadius(double radius) {
    m_cornerRadius = radius;
    setFocusRadius(*this, radius);
}

bool Button::event(QEvent* event) {
    m_hover.follow(*event);
    return QPushButton::event(event);
}

void Button::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    paint(painter);
}

} // namespace dropshade
