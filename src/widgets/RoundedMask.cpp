// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "widgets/RoundedMask.h"

#include <QBitmap>
#include <QPainter>
#include <QWidget>

namespace dropshade {

void fillWhereOpaque(QPainter& painter, const QWidget& window, const QColor& surface) {
    if (!window.testAttribute(Qt::WA_TranslucentBackground))
        painter.fillRect(window.rect(), surface);
}

void maskWhereOpaque(QWidget& window, double radius) {
    if (window.testAttribute(Qt::WA_TranslucentBackground))
        return;
    QBitmap shape(window.size());
    shape.fill(Qt::color0);
    QPainter painter(&shape);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::color1);
    painter.drawRoundedRect(shape.rect(), radius, radius);
    painter.end();
    window.setMask(shape);
}

} // namespace dropshade
