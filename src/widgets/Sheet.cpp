// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "widgets/Sheet.h"

#include "widgets/AccessibleWindows.h"
#include "widgets/Metrics.h"
#include "widgets/Painting.h"

#include <QEvent>
#include <QKeyEvent>
#include <QLayout>

#include <algorithm>

namespace dropshade {

namespace {

constexpr int fall = 12;

class Panel : public QWidget {
public:
    Panel(const Look& look, QWidget* parent) : QWidget(parent), m_look(look) {}

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        fillRounded(painter, rect(), metrics::radiusSurface, m_look.theme().surfaceRaised);
        strokeEdge(painter, rect(), metrics::radiusSurface, m_look.theme().lineEdge);
    }

private:
    const Look& m_look;
};

} // namespace

Sheet::Sheet(const Look& look, QWidget& host)
    : QWidget(&host), m_look(look), m_panel(new Panel(look, this)) {
    installAccessibleWindows();
    setFocusPolicy(Qt::NoFocus);
    m_panel->setContentsMargins(metrics::space20, metrics::space20, metrics::space20,
                                metrics::space20);
    m_presence.setStartValue(0.0);
    m_presence.setEndValue(1.0);
    m_presence.setEasingCurve(QEasingCurve::OutCubic);
    host.installEventFilter(this);
    connect(&m_presence, &QVariantAnimation::valueChanged, this, [this] {
        arrange();
        update();
    });
    connect(&look, &Look::didChange, this, [this] {
        update();
        m_panel->update();
    });
}

void Sheet::open() {
    m_formerFocus = window()->focusWidget();
    m_presence.setDuration(static_cast<int>(m_look.duration(metrics::sheetIn).count()));
    m_presence.start();
    show();
    raise();
    arrange();
    focusNextPrevChild(true);
}

void Sheet::closeSheet() {
    if (m_isClosing)
        return;
    m_isClosing = true;
    Q_EMIT closed();
    if (m_formerFocus)
        m_formerFocus->setFocus(Qt::PopupFocusReason);
    m_panel->setEnabled(false);
    connect(&m_presence, &QVariantAnimation::finished, this, &QObject::deleteLater);
    m_presence.stop();
    m_presence.setDuration(static_cast<int>(m_look.duration(metrics::sheetOut).count()));
    m_presence.setDirection(QAbstractAnimation::Backward);
    m_presence.start();
}

bool Sheet::eventFilter(QObject* watched, QEvent* event) {
    if (watched == parent() && event->type() == QEvent::Resize)
        arrange();
    if (watched == parent() && event->type() == QEvent::Close && !m_isClosing)
        closeSheet();
    return QWidget::eventFilter(watched, event);
}

bool Sheet::focusNextPrevChild(bool next) {
    // Round and round inside, for the host waits.
    QWidget* start = window()->focusWidget();
    if (!start || !isAncestorOf(start))
        start = m_panel;
    QWidget* candidate = start;
    do {
        candidate = next ? candidate->nextInFocusChain() : candidate->previousInFocusChain();
        const bool takesFocus = (candidate->focusPolicy() & Qt::TabFocus) != 0;
        if (takesFocus && m_panel->isAncestorOf(candidate) && candidate->isEnabled() &&
            candidate->isVisibleTo(this)) {
            candidate->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
            return true;
        }
    } while (candidate != start);
    return true;
}

void Sheet::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape)
        closeSheet();
    else
        QWidget::keyPressEvent(event);
}

void Sheet::mousePressEvent(QMouseEvent* event) {
    // The scrim keeps the click from the host.
    static_cast<void>(event);
}

void Sheet::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    QColor scrim = m_look.theme().overlayScrim;
    const double presence = m_presence.currentValue().toDouble();
    scrim.setAlphaF(static_cast<float>(scrim.alphaF() * presence));
    painter.fillRect(rect(), scrim);
    painter.setOpacity(presence);
    for (const Shadow& shadow : m_look.theme().shadowPopup)
        drawShadow(painter, m_panel->geometry(), metrics::radiusSurface, shadow);
}

void Sheet::arrange() {
    setGeometry(parentWidget()->rect());
    const QSize wanted =
        m_panel->layout() ? m_panel->layout()->totalSizeHint() : m_panel->sizeHint();
    const int most = std::max(0, width() - 2 * metrics::space16);
    const int wide = std::min(std::max(metrics::sheetWidth, wanted.width()), most);
    const int high = std::min(m_panel->layout() && m_panel->layout()->hasHeightForWidth()
                                  ? m_panel->layout()->totalHeightForWidth(wide)
                                  : wanted.height(),
                              std::max(0, height() - 2 * metrics::space16));
    const double away = 1.0 - m_presence.currentValue().toDouble();
    m_panel->setGeometry((width() - wide) / 2, (height() - high) / 2 - qRound(fall * away), wide,
                         high);
}

} // namespace dropshade
