// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "widgets/ColorWell.h"

#include "widgets/FocusRing.h"
#include "widgets/Metrics.h"
#include "widgets/Painting.h"

namespace dropshade {

namespace {

/// The rings lie around the colour.
constexpr int reach = metrics::focusReach;
constexpr double hoverRing = 1.5;

} // namespace

ColorWell::ColorWell(const Look& look, const QString& name, int side, QWidget* parent)
    : Button(look, parent), m_side(side) {
    setAccessibleName(name);
    setToolTip(name);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setFocusInset(*this, reach);
}

void ColorWell::setColor(const std::optional<QColor>& color) {
    if (color == m_color)
        return;
    m_color = color;
    setAccessibleDescription(color ? color->name().toUpper() : QString());
    update();
}

void ColorWell::setOpen(bool open) {
    m_isOpen = open;
    update();
}

QSize ColorWell::sizeHint() const {
    return {m_side + 2 * reach, m_side + 2 * reach};
}

void ColorWell::paint(QPainter& painter) {
    QRectF area = QRectF(rect()).adjusted(reach, reach, -reach, -reach);
    if (isPressed())
        area.adjust(1.0, 1.0, -1.0, -1.0);
    if (m_color)
        drawColor(painter, area, cornerRadius(), *m_color, theme());
    else
        drawNoColor(painter, area, cornerRadius(), theme());
    if (m_isOpen) {
        drawFocusRing(painter, area, cornerRadius(), theme());
    } else if (hoverAmount() > 0.0) {
        const double away = metrics::focusGap + hoverRing;
        strokeInside(painter, area.adjusted(-away, -away, away, away), cornerRadius() + away,
                     hoverRing, blended(Qt::transparent, theme().textPrimary, hoverAmount()));
    }
}

} // namespace dropshade
