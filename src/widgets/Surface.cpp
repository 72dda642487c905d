// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "widgets/Surface.h"

#include "widgets/AccessibleWindows.h"
#include "widgets/FocusRing.h"
#include "widgets/Metrics.h"
#include "widgets/Painting.h"
#include "widgets/RoundedMask.h"

#include <QLayout>
#include <QPropertyAnimation>
#include <QVBoxLayout>

namespace dropshade {

Surface::Surface(const Look& look, QWidget* parent, Qt::WindowFlags type)
    : QWidget(parent, type | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint), m_look(look),
      m_reach(look.blendsWindows() ? popupShadowReach(look.theme()) : 0),
      m_content(new QWidget(this)) {
    installAccessibleWindows();
    setAttribute(Qt::WA_TranslucentBackground, look.blendsWindows());
    auto* frame = new QVBoxLayout(this);
    frame->setContentsMargins(m_reach, m_reach, m_reach, m_reach);
    frame->setSizeConstraint(QLayout::SetFixedSize);
    frame->addWidget(m_content);
    new FocusRing(look, *this);
    connect(&look, &Look::didChange, this, qOverload<>(&QWidget::update));
}

QRect Surface::surfaceGeometry() const {
    return geometry().adjusted(m_reach, m_reach, -m_reach, -m_reach);
}

void Surface::fit() {
    layout()->activate();
    resize(layout()->sizeHint());
}

void Surface::moveSurface(const QPoint& corner) {
    move(corner - QPoint(m_reach, m_reach));
}

void Surface::fadeIn(std::chrono::milliseconds time) {
    const auto duration = m_look.duration(time);
    if (duration.count() > 0 && m_look.blendsWindows() && m_look.programsPlaceWindows()) {
        auto* fade = new QPropertyAnimation(this, "windowOpacity", this);
        fade->setDuration(static_cast<int>(duration.count()));
        fade->setStartValue(0.0);
        fade->setEndValue(1.0);
        fade->setEasingCurve(QEasingCurve::OutCubic);
        fade->start(QAbstractAnimation::DeleteWhenStopped);
    }
    show();
}

void Surface::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    maskWhereOpaque(*this, metrics::radiusSurface);
}

void Surface::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const Theme& theme = m_look.theme();
    const QRectF area = QRectF(rect()).adjusted(m_reach, m_reach, -m_reach, -m_reach);
    fillWhereOpaque(painter, *this, theme.surfaceRaised);
    if (m_reach > 0) {
        for (const Shadow& shadow : theme.shadowPopup)
            drawShadow(painter, area, metrics::radiusSurface, shadow);
    }
    fillRounded(painter, area, metrics::radiusSurface, theme.surfaceRaised);
    strokeEdge(painter, area, metrics::radiusSurface, theme.lineEdge);
}

} // namespace dropshade
