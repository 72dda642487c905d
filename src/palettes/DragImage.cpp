// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "palettes/DragImage.h"

#include "widgets/Metrics.h"
#include "widgets/Painting.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace dropshade {
namespace {

constexpr double liftLine = 2.0;
/// The lift runs from 0 to this, so that its rest is told by the same measure as a place's.
constexpr double liftSteps = 100.0;
constexpr double rowInset = 4.0;

SpringMotion spring(const metrics::Spring& spring) {
    return {0.0, spring.response, spring.dampingFraction};
}

} // namespace

DragImage::DragImage(const Look& look, QWidget* list)
    : QWidget(list), m_look(look), m_lift(spring(metrics::liftSwatch)),
      m_x(spring(metrics::reorder)), m_y(spring(metrics::reorder)) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
}

void DragImage::lift(Kind kind, const QPixmap& picture, const QSizeF& size) {
    m_kind = kind;
    m_picture = picture;
    m_size = size;
    m_isSettling = false;
    m_lift = spring(kind == Kind::Swatch ? metrics::liftSwatch : metrics::liftScaleOrPalette);
    m_lift.setTarget(liftSteps);
    show();
    raise();
}

void DragImage::moveCenter(const QPointF& center) {
    m_x.jump(center.x());
    m_y.jump(center.y());
    arrange();
}

void DragImage::settle(const QPointF& center) {
    m_isSettling = true;
    m_lift.setTarget(0.0);
    m_x.setTarget(center.x());
    m_y.setTarget(center.y());
}

void DragImage::vanish() {
    m_isSettling = false;
    m_picture = QPixmap();
    hide();
}

bool DragImage::advance(std::chrono::duration<double> time) {
    if (!isVisible())
        return false;
    bool moves = false;
    for (SpringMotion* motion : {&m_lift, &m_x, &m_y}) {
        motion->advance(time);
        if (motion->isAtRest())
            motion->finish();
        else
            moves = true;
    }
    arrange();
    if (!moves && m_isSettling)
        vanish();
    return moves;
}

double DragImage::scale() const {
    const double most = m_kind == Kind::Swatch ? metrics::swatchDraggedScale : 1.0;
    return 1.0 + (most - 1.0) * m_lift.value() / liftSteps;
}

void DragImage::arrange() {
    const double reach = m_look.theme().shadowDrag.blur + m_look.theme().shadowDrag.offset;
    const double most = m_kind == Kind::Swatch ? metrics::swatchDraggedScale * 1.1 : 1.0;
    const QSizeF size = m_size * most + 2.0 * QSizeF(reach, reach);
    const QPointF corner(m_x.value() - size.width() / 2.0, m_y.value() - size.height() / 2.0);
    setGeometry(QRectF(corner, size).toAlignedRect());
    update();
}

void DragImage::paintEvent(QPaintEvent*) {
    if (m_picture.isNull())
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const Theme& theme = m_look.theme();
    const double lifted = std::clamp(m_lift.value() / liftSteps, 0.0, 1.0);
    const QPointF center = QPointF(m_x.value(), m_y.value()) - QPointF(pos());
    const QSizeF size = m_size * scale();
    QRectF area(center - QPointF(size.width(), size.height()) / 2.0, size);
    double radius = metrics::radiusCell;
    if (m_kind == Kind::Row) {
        area.adjust(rowInset, 0.0, -rowInset, 0.0);
        radius = metrics::radiusControl;
    }
    Shadow shadow = theme.shadowDrag;
    shadow.color.setAlphaF(float(shadow.color.alphaF() * lifted));
    drawShadow(painter, area, radius, shadow);
    QPainterPath outline;
    outline.addRoundedRect(area, radius, radius);
    painter.save();
    painter.setClipPath(outline);
    if (m_kind == Kind::Row) {
        painter.fillRect(area, theme.surfaceRaised);
        painter.drawPixmap(QRectF(center - QPointF(m_size.width(), m_size.height()) / 2.0, m_size),
                           m_picture, QRectF(m_picture.rect()));
    } else {
        painter.drawPixmap(area, m_picture, QRectF(m_picture.rect()));
    }
    painter.restore();
    if (m_kind == Kind::Row) {
        strokeEdge(painter, area, radius, theme.lineEdge);
        return;
    }
    QColor edge = theme.lineLift;
    edge.setAlphaF(float(lifted));
    strokeInside(painter, area, radius, liftLine, edge);
}

} // namespace dropshade
