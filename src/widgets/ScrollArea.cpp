// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "widgets/ScrollArea.h"

#include "widgets/Metrics.h"

#include <QApplication>
#include <QEvent>
#include <QScrollBar>

namespace dropshade {

ScrollArea::ScrollArea(const Look& look, QWidget* parent)
    : QScrollArea(parent), m_bar(new QScrollBar(Qt::Vertical, this)) {
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setFocusPolicy(Qt::NoFocus);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    // The bar of the area would take width from the content; this one lies on its margin.
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setStyle(look.style());
    m_bar->setStyle(look.style());
    m_bar->setAttribute(Qt::WA_Hover);
    m_bar->setAutoFillBackground(false);
    QPalette clear = palette();
    clear.setColor(QPalette::Window, Qt::transparent);
    setPalette(clear);
    viewport()->setAutoFillBackground(false);
    QScrollBar* own = verticalScrollBar();
    connect(own, &QScrollBar::rangeChanged, this, &ScrollArea::arrange);
    connect(own, &QScrollBar::valueChanged, m_bar, &QScrollBar::setValue);
    connect(m_bar, &QScrollBar::valueChanged, own, &QScrollBar::setValue);
    connect(&look, &Look::didChange, m_bar, qOverload<>(&QWidget::update));
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* focused) {
        // A content that has the keyboard itself knows which part of it to show.
        if (focused && focused != widget() && widget() && widget()->isAncestorOf(focused))
            ensureWidgetVisible(focused, 0, metrics::space8);
    });
    arrange();
}

void ScrollArea::resizeEvent(QResizeEvent* event) {
    QScrollArea::resizeEvent(event);
    arrange();
}

bool ScrollArea::eventFilter(QObject* watched, QEvent* event) {
    const bool handled = QScrollArea::eventFilter(watched, event);
    if (watched == widget() && event->type() == QEvent::Resize)
        arrange();
    return handled;
}

void ScrollArea::arrange() {
    const QScrollBar* own = verticalScrollBar();
    m_bar->setRange(own->minimum(), own->maximum());
    m_bar->setPageStep(own->pageStep());
    m_bar->setSingleStep(own->singleStep());
    m_bar->setValue(own->value());
    const int side = m_bar->sizeHint().width();
    m_bar->setGeometry(width() - side, 0, side, height());
    m_bar->setVisible(own->maximum() > own->minimum());
    m_bar->raise();
}

} // namespace dropshade
