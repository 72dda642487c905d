// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "widgets/RadioButton.h"

#include "widgets/FocusRing.h"
#include "widgets/Metrics.h"
#include "widgets/Painting.h"
#include "widgets/ToolTip.h"

namespace dropshade {

RadioButton::RadioButton(const Look& look, QWidget* parent) : QRadioButton(parent), m_look(look) {
    setAttribute(Qt::WA_Hover);
    setFocusPolicy(Qt::TabFocus);
    setFocusRadius(*this, metrics::radiusControl);
    ToolTip::installOn(*this, look);
    connect(&look, &Look::didChange, this, qOverload<>(&QWidget::update));
}

QColor RadioButton::stateFill() const {
    return isPressed() ? theme().fillPressed
                       : blended(Qt::transparent, theme().fillHover, hoverAmount());
}

bool RadioButton::hitButton(const QPoint& position) const {
    return rect().contains(position);
}

bool RadioButton::event(QEvent* event) {
    m_hover.follow(*event);
    return QRadioButton::event(event);
}

void RadioButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    paint(painter);
}

} // namespace dropshade
