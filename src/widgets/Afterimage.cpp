// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "widgets/Afterimage.h"

#include "widgets/WindowFade.h"

#include <QEvent>
#include <QPainter>
#include <QPropertyAnimation>

namespace dropshade {

namespace {

constexpr auto flags = Qt::ToolTip | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint |
                       Qt::WindowTransparentForInput | Qt::WindowDoesNotAcceptFocus;

} // namespace

Afterimage::Afterimage(QWidget& window) : QWidget(window.parentWidget(), flags), m_window(window) {
    setAttribute(Qt::WA_TranslucentBackground);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_DeleteOnClose);
    if (parentWidget())
        parentWidget()->installEventFilter(this);
    connect(&window, &QObject::destroyed, this, [this] {
        if (m_picture.isNull())
            close();
    });
    setGeometry(window.geometry());
    setWindowOpacity(0.0);
    show();
}

void Afterimage::fade(std::chrono::milliseconds time) {
    m_picture = m_window.grab();
    setGeometry(m_window.geometry());
    repaint();
    const auto* fade =
        fadeWindow(*this, {m_window.windowOpacity(), 0.0, time, QEasingCurve::InCubic});
    connect(fade, &QAbstractAnimation::finished, this, &QWidget::close);
}

bool Afterimage::eventFilter(QObject* watched, QEvent* event) {
    if (watched == parent() && event->type() == QEvent::Hide)
        close();
    return QWidget::eventFilter(watched, event);
}

void Afterimage::paintEvent(QPaintEvent*) {
    QPainter(this).drawPixmap(0, 0, m_picture);
}

} // namespace dropshade
