// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "widgets/TintedIcon.h"

#include <QFile>
#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>

#include <array>

namespace dropshade {

namespace {

constexpr int gridSize = 18;
constexpr std::array<int, 8> panelSizes{16, 18, 22, 24, 32, 36, 44, 48};

int drawingSize(int side) {
    return side < gridSize ? side : side - side % (gridSize / 2);
}

QPixmap pixmap(QSvgRenderer& drawing, int side) {
    QPixmap target(side, side);
    target.fill(Qt::transparent);
    QPainter painter(&target);
    const int size = drawingSize(side);
    const int margin = (side - size) / 2;
    drawing.render(&painter, QRectF(margin, margin, size, size));
    return target;
}

} // namespace

QIcon tintedStatusIcon(const QString& resource, const QColor& ink) {
    QFile file(resource);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QByteArray svg = file.readAll();
    svg.replace("currentColor", ink.name().toLatin1());
    QSvgRenderer drawing(svg);
    QIcon icon;
    if (drawing.isValid()) {
        for (const int side : panelSizes)
            icon.addPixmap(pixmap(drawing, side));
    }
    return icon;
}

} // namespace dropshade
