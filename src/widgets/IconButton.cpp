// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "widgets/IconButton.h"

#include "widgets/Metrics.h"
#include "widgets/Painting.h"

namespace dropshade {

IconButton::IconButton(const Look& look, Icon icon, const QString& name, int side, QWidget* parent)
    : Button(look, parent), m_icon(icon), m_side(side), m_drawingSize(metrics::icon) {
    setAccessibleName(name);
    setToolTip(name);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setCornerRadius(side <= metrics::iconButtonField ? metrics::radiusCell
                                                     : metrics::radiusControl);
}

IconButton::IconButton(const Look& look, Icon icon, const QString& name, QWidget* parent)
    : IconButton(look, icon, name, metrics::iconButton, parent) {}

void IconButton::setDrawing(Icon icon) {
    m_icon = icon;
    update();
}

void IconButton::setDrawingSize(int side) {
    m_drawingSize = side;
    update();
}

QColor IconButton::ground() const {
    if (!isChecked())
        return isEnabled() ? filled(Qt::transparent) : QColor(Qt::transparent);
    if (!isEnabled())
        return theme().fillHover;
    if (isPressed())
        return theme().accentSoftPressed;
    const double share = hoverAmount();
    QColor color = theme().accentSoft;
    color.setAlphaF(static_cast<float>(color.alphaF() * (1.0 - share) +
                                       theme().accentSoftHover.alphaF() * share));
    return color;
}

QColor IconButton::ink() const {
    if (isEnabled() && isChecked())
        return theme().accentBase;
    if (isEnabled() && (isPressed() || hoverAmount() > 0.5))
        return theme().textPrimary;
    return theme().textSecondary;
}

void IconButton::paint(QPainter& painter) {
    fillRounded(painter, rect(), cornerRadius(), ground());
    if (!isEnabled())
        painter.setOpacity(metrics::disabledIconOpacity);
    const QPoint corner((width() - m_drawingSize) / 2, (height() - m_drawingSize) / 2);
    painter.drawPixmap(corner, iconPixmap(m_icon, ink(), m_drawingSize, devicePixelRatioF()));
}

} // namespace dropshade
