// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "widgets/Icon.h"

#include <QFile>
#include <QPainter>
#include <QPixmapCache>
#include <QSvgRenderer>

#include <array>

namespace dropshade {

namespace {

enum class Kind { Stroked, Filled, AsDrawn };

struct Drawing {
    const char* file;
    Kind kind;
};

/// In the order of `Icon`.
constexpr std::array<Drawing, 34> drawings = {{
    {"lucide/pipette", Kind::Stroked},
    {"lucide/swatch-book", Kind::Stroked},
    {"lucide/palette", Kind::Stroked},
    {"lucide/mouse-pointer-click", Kind::Stroked},
    {"lucide/contrast", Kind::Stroked},
    {"lucide/settings", Kind::Stroked},
    {"lucide/info", Kind::Stroked},
    {"lucide/refresh-cw", Kind::Stroked},
    {"lucide/log-out", Kind::Stroked},
    {"lucide/eraser", Kind::Stroked},
    {"lucide/clock", Kind::Stroked},
    {"lucide/star", Kind::Stroked},
    {"lucide/star", Kind::Filled},
    {"lucide/zap", Kind::Stroked},
    {"lucide/circle-alert", Kind::Stroked},
    {"lucide/circle-check", Kind::Stroked},
    {"lucide/circle-x", Kind::Stroked},
    {"lucide/triangle-alert", Kind::Stroked},
    {"lucide/octagon-alert", Kind::Stroked},
    {"lucide/pipette", Kind::Stroked},
    {"lucide/copy", Kind::Stroked},
    {"lucide/ellipsis", Kind::Stroked},
    {"lucide/plus", Kind::Stroked},
    {"lucide/x", Kind::Stroked},
    {"lucide/chevron-right", Kind::Stroked},
    {"lucide/chevron-down", Kind::Stroked},
    {"lucide/chevrons-up-down", Kind::Stroked},
    {"lucide/grip-vertical", Kind::Stroked},
    {"lucide/image-plus", Kind::Stroked},
    {"lucide/file-plus", Kind::Stroked},
    {"lucide/loader-circle", Kind::Stroked},
    {"status-picker", Kind::AsDrawn},
    {"status-swatch", Kind::AsDrawn},
    {"status-palette", Kind::AsDrawn},
}};

/// The grid of the stroked drawings.
constexpr double gridSize = 24.0;

/// In logical pixels.
double strokeWidth(int side) {
    return side < 16 ? 1.4 : side < 40 ? 1.5 : 2.0;
}

QByteArray source(const Drawing& drawing, const QColor& ink, int side) {
    QFile file(QStringLiteral(":/icons/%1.svg").arg(QLatin1String(drawing.file)));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QByteArray svg = file.readAll();
    if (drawing.kind != Kind::AsDrawn) {
        const double width = strokeWidth(side) * gridSize / side;
        svg.replace("stroke-width=\"2\"", "stroke-width=\"" + QByteArray::number(width) + '"');
    }
    if (drawing.kind == Kind::Filled)
        svg.replace("fill=\"none\"", "fill=\"currentColor\"");
    return svg.replace("currentColor", ink.name().toLatin1());
}

} // namespace

QPixmap iconPixmap(Icon icon, const QColor& ink, int side, double ratio) {
    const QString key = QStringLiteral("dropshade-icon-%1-%2-%3-%4")
                            .arg(static_cast<int>(icon))
                            .arg(ink.rgba())
                            .arg(side)
                            .arg(ratio);
    QPixmap pixmap;
    if (QPixmapCache::find(key, &pixmap))
        return pixmap;
    const int pixels = qRound(side * ratio);
    pixmap = QPixmap(pixels, pixels);
    pixmap.fill(Qt::transparent);
    QSvgRenderer renderer(source(drawings[static_cast<std::size_t>(icon)], ink, side));
    QPainter painter(&pixmap);
    painter.setOpacity(ink.alphaF());
    renderer.render(&painter, QRectF(0, 0, pixels, pixels));
    painter.end();
    pixmap.setDevicePixelRatio(ratio);
    QPixmapCache::insert(key, pixmap);
    return pixmap;
}

QIcon tintedIcon(Icon icon, const QColor& ink, const QColor& disabledInk, int side) {
    QIcon result;
    for (const double ratio : {1.0, 2.0}) {
        result.addPixmap(iconPixmap(icon, ink, side, ratio), QIcon::Normal);
        result.addPixmap(iconPixmap(icon, disabledInk, side, ratio), QIcon::Disabled);
    }
    return result;
}

} // namespace dropshade
