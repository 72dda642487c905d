// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "widgets/Toggle.h"

#include "widgets/FocusRing.h"
#include "widgets/Metrics.h"
#include "widgets/Painting.h"

namespace dropshade {

namespace {

constexpr double outline = 1.5;
constexpr double knobOff = 12.0;
constexpr double knobOn = 16.0;
constexpr double stretch = 2.0;
constexpr double halo = 4.0;

double between(double first, double second, double share) {
    return first + (second - first) * share;
}

} // namespace

Toggle::Toggle(const Look& look, const QString& name, QWidget* parent)
    : Button(look, parent), m_position(*this) {
    setCheckable(true);
    setAccessibleName(name);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setCornerRadius(metrics::toggleHeight / 2.0);
    setFocusInset(*this, static_cast<int>(halo));
    connect(this, &QAbstractButton::toggled, this, [this](bool on) {
        m_position.moveTo(on ? 1.0 : 0.0, this->look().duration(metrics::toggle));
    });
}

QSize Toggle::sizeHint() const {
    constexpr int room = 2 * static_cast<int>(halo);
    return {metrics::toggleWidth + room, metrics::toggleHeight + room};
}

void Toggle::paint(QPainter& painter) {
    const QRectF track((width() - metrics::toggleWidth) / 2.0,
                       (height() - metrics::toggleHeight) / 2.0, metrics::toggleWidth,
                       metrics::toggleHeight);
    paintTrack(painter, track, m_position.value());
    paintKnob(painter, track, m_position.value());
}

void Toggle::paintTrack(QPainter& painter, const QRectF& track, double on) {
    const double radius = track.height() / 2.0;
    if (!isEnabled()) {
        if (isChecked())
            fillRounded(painter, track, radius, theme().fillPressed);
        else
            strokeInside(painter, track, radius, metrics::lineHairline, theme().lineEdge);
        return;
    }
    if (on < 1.0) {
        fillRounded(painter, track, radius, filled(Qt::transparent));
        strokeInside(painter, track, radius, outline, theme().lineControl);
    }
    if (on > 0.0) {
        fillRounded(painter, track.adjusted(-halo, -halo, halo, halo), radius + halo,
                    blended(Qt::transparent, theme().accentSoft, hoverAmount() * on));
        fillRounded(painter, track, radius, blended(Qt::transparent, theme().accentBase, on));
    }
}

void Toggle::paintKnob(QPainter& painter, const QRectF& track, double on) {
    const double size = between(knobOff, knobOn, on);
    const double margin = (track.height() - size) / 2.0;
    const double wide = size + (isPressed() ? stretch : 0.0);
    const double left = between(track.left() + margin, track.right() - margin - wide, on);
    QColor color = blended(theme().textSecondary, theme().toggleKnobOn, on);
    if (!isEnabled()) {
        color = isChecked() ? theme().surfaceWindow : theme().textTertiary;
        painter.setOpacity(metrics::disabledIconOpacity);
    }
    fillRounded(painter, QRectF(left, track.top() + margin, wide, size), size / 2.0, color);
}

} // namespace dropshade
