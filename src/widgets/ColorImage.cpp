// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "widgets/ColorImage.h"

#include "widgets/Metrics.h"
#include "widgets/Painting.h"

#include <QIconEngine>
#include <QPixmap>

namespace dropshade {

namespace {

constexpr double inset = 0.5;

class ColorEngine : public QIconEngine {
public:
    ColorEngine(const QColor& color, const QColor& edge) : m_color(color), m_edge(edge) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode, QIcon::State) override {
        const QRectF square = QRectF(rect).adjusted(inset, inset, -inset, -inset);
        fillRounded(*painter, square, metrics::radiusCell, m_color);
        strokeEdge(*painter, square, metrics::radiusCell, m_edge);
    }

    QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State state,
                         qreal scale) override {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        painter.scale(scale, scale);
        paint(&painter, QRect(QPoint(), (QSizeF(size) / scale).toSize()), mode, state);
        return pixmap;
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        return scaledPixmap(size, mode, state, 1.0);
    }

    QSize actualSize(const QSize& size, QIcon::Mode, QIcon::State) override {
        return size.boundedTo(QSize(metrics::menuSwatch, metrics::menuSwatch));
    }

    [[nodiscard]] QIconEngine* clone() const override { return new ColorEngine(*this); }

private:
    QColor m_color;
    QColor m_edge;
};

} // namespace

QIcon colorImage(const QColor& color, const Theme& theme) {
    return QIcon(new ColorEngine(color, theme.lineSwatch));
}

} // namespace dropshade
