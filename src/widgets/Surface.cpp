// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "widgets/Surface.h"

#include "widgets/AccessibleWindows.h"
#include "widgets/Afterimage.h"
#include "widgets/FocusRing.h"
#include "widgets/Metrics.h"
#include "widgets/Painting.h"
#include "widgets/RoundedMask.h"
#include "widgets/WindowFade.h"

#include <QAccessible>
#include <QLayout>
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

std::chrono::milliseconds Surface::fadeTime(std::chrono::milliseconds time) const {
    const bool canFade = m_look.blendsWindows() && m_look.programsPlaceWindows();
    return canFade ? m_look.duration(time) : std::chrono::milliseconds::zero();
}

void Surface::fadeIn() {
    const auto duration = fadeTime(metrics::popoverIn);
    if (duration.count() > 0) {
        // A screen reader would meet it as a window without a name.
        if (!QAccessible::isActive())
            m_afterimage = new Afterimage(*this);
        fadeWindow(*this, {0.0, 1.0, duration, QEasingCurve::OutCubic});
    }
    show();
}

void Surface::closeEvent(QCloseEvent* event) {
    const auto duration = fadeTime(metrics::popoverOut);
    if (duration.count() > 0 && isVisible() && m_afterimage)
        m_afterimage->fade(duration);
    QWidget::closeEvent(event);
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
