// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "widgets/Spinner.h"

#include "widgets/Icon.h"
#include "widgets/Metrics.h"

#include <QPainter>

namespace dropshade {

namespace {

constexpr std::chrono::milliseconds patience{150};
constexpr std::chrono::milliseconds oneTurn{1000};

} // namespace

Spinner::Spinner(const Look& look, const QString& name, QWidget* parent)
    : QWidget(parent), m_look(look), m_name(name) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    m_delay.setSingleShot(true);
    m_delay.setInterval(patience);
    m_turn.setStartValue(0.0);
    m_turn.setEndValue(360.0);
    m_turn.setLoopCount(-1);
    connect(&m_delay, &QTimer::timeout, this, &Spinner::appear);
    connect(&m_turn, &QVariantAnimation::valueChanged, this, qOverload<>(&QWidget::update));
    connect(&look, &Look::didChange, this, qOverload<>(&QWidget::update));
}

void Spinner::setSpinning(bool spinning) {
    if (m_isSpinning == spinning)
        return;
    m_isSpinning = spinning;
    if (spinning) {
        m_delay.start();
        return;
    }
    m_delay.stop();
    m_turn.stop();
    m_isShown = false;
    setAccessibleName({});
    update();
}

void Spinner::appear() {
    m_isShown = true;
    // It is there for nobody before.
    setAccessibleName(m_name);
    const auto time = m_look.duration(oneTurn);
    if (time.count() > 0) {
        m_turn.setDuration(static_cast<int>(time.count()));
        m_turn.start();
    }
    update();
}

QSize Spinner::sizeHint() const {
    return {metrics::icon, metrics::icon};
}

void Spinner::paintEvent(QPaintEvent*) {
    if (!m_isShown)
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.translate(width() / 2.0, height() / 2.0);
    painter.rotate(m_turn.currentValue().toDouble());
    const double half = metrics::icon / 2.0;
    painter.drawPixmap(QPointF(-half, -half),
                       iconPixmap(Icon::Working, m_look.theme().textSecondary, metrics::icon,
                                  devicePixelRatioF()));
}

} // namespace dropshade
