// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "widgets/RoundedMask.h"

#include <QPainterPath>
#include <QRegion>
#include <QWidget>

namespace dropshade {

void maskWhereOpaque(QWidget& window, double radius) {
    if (window.testAttribute(Qt::WA_TranslucentBackground))
        return;
    QPainterPath path;
    path.addRoundedRect(window.rect(), radius, radius);
    window.setMask(QRegion(path.toFillPolygon().toPolygon()));
}

} // namespace dropshade
