// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "palettes/ListRowWidget.h"

#include "widgets/Metrics.h"
#include "widgets/Painting.h"

#include <QPaintEvent>
#include <QPainter>

#include <utility>

namespace dropshade {

ListRowWidget::ListRowWidget(const Look& look, QWidget* list) : QWidget(list), m_look(look) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::NoFocus);
}

void ListRowWidget::repaintElement(const ListElement& element) {
    if (!areaOf(element).isEmpty())
        update(repaintAreaOf(element).toAlignedRect());
}

QRectF ListRowWidget::repaintAreaOf(const ListElement& element) const {
    constexpr double reach = metrics::focusReach;
    return areaOf(element).adjusted(-reach, -reach, reach, reach);
}

void ListRowWidget::setMarks(const ListMarks& marks) {
    const ListMarks before = std::exchange(m_marks, marks);
    for (const auto mark : {&ListMarks::hovered, &ListMarks::pressed, &ListMarks::focused}) {
        if (before.*mark == marks.*mark)
            continue;
        repaintElement(before.*mark);
        repaintElement(marks.*mark);
    }
}

void ListRowWidget::setLifted(bool isLifted) {
    if (m_isLifted == isLifted)
        return;
    m_isLifted = isLifted;
    update();
}

QString ListRowWidget::elidedNameOf(const ListElement&) const {
    return {};
}

bool ListRowWidget::advance(std::chrono::duration<double>) {
    return false;
}

void ListRowWidget::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    for (const QRect& area : event->region())
        painter.fillRect(area, theme().surfaceWindow);
    if (m_isLifted)
        painter.setOpacity(metrics::draggedOriginOpacity);
    paint(painter, event->region());
}

QPixmap ListRowWidget::image() {
    const double ratio = devicePixelRatioF();
    QPixmap picture((QSizeF(size()) * ratio).toSize());
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    paint(painter, rect());
    return picture;
}

} // namespace dropshade
