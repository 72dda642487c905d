// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "palettes/DragGesture.h"

#include <cmath>

namespace dropshade {
namespace {

constexpr double minimumDistance = 4.0;

} // namespace

DragGesture::DragGesture(Scheduler& scheduler) : m_scheduler(scheduler) {}

DragGesture::~DragGesture() = default;

void DragGesture::press(const QPointF& location) {
    m_start = location;
}

void DragGesture::move(const QPointF& location) {
    if (!m_start)
        return;
    const QPointF way = location - *m_start;
    if (!m_isDragging && std::hypot(way.x(), way.y()) < minimumDistance)
        return;
    m_isDragging = true;
    Q_EMIT changed(DragValue{*m_start, location});
}

bool DragGesture::end(std::chrono::milliseconds clickPause) {
    m_start.reset();
    if (!m_isDragging)
        return false;
    m_isDragging = false;
    Q_EMIT ended();
    if (clickPause.count() > 0)
        m_clickPause = m_scheduler.after(clickPause, [this] { m_clickPause.reset(); });
    return true;
}

} // namespace dropshade
