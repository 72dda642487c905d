// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QEasingCurve>
#include <QVariantAnimation>
#include <QWidget>

#include <chrono>

namespace dropshade {

/// A number of a widget's picture on its way to where it shall be; each step repaints the widget.
class AnimatedValue {
public:
    explicit AnimatedValue(QWidget& widget, double value = 0.0) : m_widget(widget), m_end(value) {}

    double value() const { return isMoving() ? m_animation.currentValue().toDouble() : m_end; }

    /// Nothing where it is on its way there already; at once where `time` is none.
    void moveTo(double end, std::chrono::milliseconds time,
                QEasingCurve::Type curve = QEasingCurve::OutCubic) {
        if (end == m_end)
            return;
        const double start = value();
        m_end = end;
        m_animation.stop();
        if (time.count() > 0 && m_widget.isVisible()) {
            m_animation.setDuration(static_cast<int>(time.count()));
            m_animation.setEasingCurve(curve);
            m_animation.setStartValue(start);
            m_animation.setEndValue(end);
            QObject::connect(&m_animation, &QVariantAnimation::valueChanged, &m_widget,
                             qOverload<>(&QWidget::update), Qt::UniqueConnection);
            m_animation.start();
        }
        m_widget.update();
    }

private:
    bool isMoving() const { return m_animation.state() == QAbstractAnimation::Running; }

    QWidget& m_widget;
    QVariantAnimation m_animation;
    double m_end;
};

} // namespace dropshade
