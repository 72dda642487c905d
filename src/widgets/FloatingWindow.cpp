// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "widgets/FloatingWindow.h"

#include "widgets/AccessibleWindows.h"
#include "widgets/FocusAnswer.h"
#include "widgets/FocusRing.h"
#include "widgets/WindowFrames.h"

#include <QAbstractButton>
#include <QCloseEvent>
#include <QGuiApplication>
#include <QLineEdit>
#include <QPainter>
#include <QScreen>
#include <QShortcut>

namespace dropshade {

namespace {

/// While the user drags a border there is a new frame with each pixel.
constexpr std::chrono::milliseconds frameDelay{400};

QList<QRect> availableScreens() {
    QList<QRect> areas;
    for (const QScreen* screen : QGuiApplication::screens())
        areas.append(screen->availableGeometry());
    return areas;
}

} // namespace

FloatingWindow::FloatingWindow(const Look& look)
    : QWidget(nullptr, Qt::Window | Qt::WindowStaysOnTopHint | Qt::WindowTitleHint |
                           Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint),
      m_look(look) {
    installAccessibleWindows();
    answerFocusChanges(*this);
    setAttribute(Qt::WA_AlwaysShowToolTips);
    // The paint event fills all of it.
    setAttribute(Qt::WA_OpaquePaintEvent);
    new FocusRing(look, *this);
    for (const QKeySequence& keys :
         {QKeySequence(Qt::Key_Escape), QKeySequence(Qt::CTRL | Qt::Key_W),
          QKeySequence(Qt::META | Qt::Key_W)})
        connect(new QShortcut(keys, this), &QShortcut::activated, this, &FloatingWindow::dismiss);
    m_frameSettles.setSingleShot(true);
    m_frameSettles.setInterval(frameDelay);
    connect(&m_frameSettles, &QTimer::timeout, this, &FloatingWindow::storeFrame);
    connect(&look, &Look::didChange, this, qOverload<>(&QWidget::update));
}

void FloatingWindow::rememberFrame(UserDefaults& defaults, const QString& name, const QSize& size) {
    const int refusedBefore = defaults.refusedReads();
    const auto stored = storedWindowFrame(defaults, name);
    if (stored) {
        const QRect frame = onScreens(*stored, availableScreens());
        resize(frame.size());
        move(frame.topLeft());
    } else {
        resize(size);
        if (const QScreen* screen = QGuiApplication::primaryScreen())
            move(screen->availableGeometry().center() - QPoint(width() / 2, height() / 2));
    }
    m_placedAt = pos();
    // A frame that couldn't be read isn't replaced by the one that stands in for it.
    m_defaults = defaults.refusedReads() == refusedBefore ? &defaults : nullptr;
    m_frameName = name;
}

void FloatingWindow::present() {
    if (isMinimized())
        setWindowState(windowState() & ~Qt::WindowMinimized);
    // Window managers place a window that comes back as if it were new.
    if (!isVisible() && m_hiddenAt)
        move(*m_hiddenAt);
    show();
    raise();
    activateWindow();
}

void FloatingWindow::dismiss() {
    close();
}

void FloatingWindow::endTypingAtPresses() {
    for (const QAbstractButton* button : findChildren<QAbstractButton*>()) {
        connect(button, &QAbstractButton::pressed, this, [this] {
            if (qobject_cast<QLineEdit*>(focusWidget()))
                setFocus(Qt::OtherFocusReason);
        });
    }
}

void FloatingWindow::closeEvent(QCloseEvent* event) {
    storeFrame();
    event->accept();
    Q_EMIT closed();
}

void FloatingWindow::hideEvent(QHideEvent* event) {
    m_hiddenAt = pos();
    QWidget::hideEvent(event);
}

void FloatingWindow::moveEvent(QMoveEvent* event) {
    QWidget::moveEvent(event);
    if (m_defaults && isVisible())
        m_frameSettles.start();
}

void FloatingWindow::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    if (m_defaults && isVisible())
        m_frameSettles.start();
}

void FloatingWindow::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), m_look.theme().surfaceWindow);
}

void FloatingWindow::storeFrame() {
    m_frameSettles.stop();
    if (!m_defaults || !isVisible() || isMinimized())
        return;
    // Where the desktop alone knows the place, the stored one is kept for other desktops.
    const QPoint corner = m_look.programsPlaceWindows() ? pos() : m_placedAt;
    storeWindowFrame(*m_defaults, m_frameName, QRect(corner, size()));
}

} // namespace dropshade
