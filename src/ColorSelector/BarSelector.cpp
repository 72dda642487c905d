// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "ColorSelector/BarSelector.h"

#include "ColorSelector/SelectorGeometry.h"
#include "widgets/Metrics.h"

#include <algorithm>

namespace dropshade {

int BarSelector::reach() const {
    return metrics::focusReach;
}

void BarSelector::setValue(double value) {
    if (value == m_value)
        return;
    m_value = value;
    valueChanged();
}

void BarSelector::userSetMainValue(double value) {
    const double pinned = std::clamp(value, 0.0, 1.0);
    if (pinned == m_value)
        return;
    setValue(pinned);
    announce(pinned);
}

void BarSelector::pointAt(const QPointF& place) {
    userSetMainValue(selector::barValue(place.x(), track().width()));
}

void BarSelector::step(double alongX, double alongY) {
    userSetMainValue(selector::stepped(m_value, alongX + alongY));
}

void BarSelector::jump(bool toEnd) {
    userSetMainValue(toEnd ? 1.0 : 0.0);
}

QPointF BarSelector::thumbCenter() const {
    const QRectF area = track();
    return {selector::barThumb(m_value, area.width(), pointSize()), area.height() / 2.0};
}

} // namespace dropshade
