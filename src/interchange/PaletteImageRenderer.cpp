// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "interchange/PaletteImageRenderer.h"

#include <QBuffer>
#include <QImage>
#include <QImageWriter>
#include <QPageSize>
#include <QPdfWriter>

#include <algorithm>

namespace dropshade {
namespace {

constexpr int pixelsPerPoint = 2;
constexpr double pointsPerMeter = 72 / 0.0254;

/// Qt's painter counts in 16 bits, so a wide picture is drawn in pieces.
constexpr int mostPaintedPixels = 16'384;

void prepare(QPainter& painter) {
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing |
                           QPainter::SmoothPixmapTransform);
}

void drawPiece(const PalettePoster& poster, QImage& picture, const QRect& piece) {
    constexpr int bytesPerPixel = 4;
    uchar* const corner = picture.scanLine(piece.top()) + qsizetype(piece.left()) * bytesPerPixel;
    QImage target(corner, piece.width(), piece.height(), picture.bytesPerLine(), picture.format());
    QPainter painter(&target);
    prepare(painter);
    painter.translate(-piece.topLeft());
    painter.scale(pixelsPerPoint, pixelsPerPoint);
    poster.draw(painter, QRectF(QPointF(piece.topLeft()) / pixelsPerPoint,
                                QSizeF(piece.size()) / pixelsPerPoint));
}

} // namespace

std::optional<QByteArray> PaletteImageRenderer::pngData(const PalettePoster& poster) {
    const QSizeF pixels = poster.size() * pixelsPerPoint;
    if (pixels.width() * pixels.height() * 4 > static_cast<double>(mostPixelBytes))
        return std::nullopt;
    QImage picture(pixels.toSize(), QImage::Format_RGBA8888_Premultiplied);
    if (picture.isNull())
        return std::nullopt;
    for (int y = 0; y < picture.height(); y += mostPaintedPixels) {
        for (int x = 0; x < picture.width(); x += mostPaintedPixels)
            drawPiece(poster, picture,
                      QRect(x, y, mostPaintedPixels, mostPaintedPixels) & picture.rect());
    }
    // The ground is opaque everywhere, so the two forms are the same bytes.
    picture.reinterpretAsFormat(QImage::Format_RGBA8888);
    picture.setDotsPerMeterX(qRound(pixelsPerPoint * pointsPerMeter));
    picture.setDotsPerMeterY(qRound(pixelsPerPoint * pointsPerMeter));
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    if (!QImageWriter(&buffer, "png").write(picture))
        return std::nullopt;
    return bytes;
}

std::optional<QByteArray> PaletteImageRenderer::pdfData(const PalettePoster& poster) {
    const QSizeF size = poster.size();
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    {
        constexpr int unitsPerInch = 1200;
        QPdfWriter writer(&buffer);
        writer.setResolution(unitsPerInch);
        writer.setPageSize(
            QPageSize(size, QPageSize::Point, QStringLiteral("Poster"), QPageSize::ExactMatch));
        writer.setPageMargins(QMarginsF());
        QPainter painter;
        if (!painter.begin(&writer))
            return std::nullopt;
        prepare(painter);
        painter.scale(unitsPerInch / 72.0, unitsPerInch / 72.0);
        poster.draw(painter, QRectF(QPointF(), size));
        if (!painter.end())
            return std::nullopt;
    }
    return bytes;
}

} // namespace dropshade
