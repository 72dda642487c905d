// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "widgets/FocusRing.h"

#include "widgets/Metrics.h"
#include "widgets/Painting.h"

#include <QApplication>
#include <QVariant>

namespace dropshade {

namespace {

constexpr const char* radiusProperty = "focusRadius";
constexpr const char* insetProperty = "focusInset";

class Frame : public QFocusFrame {
public:
    Frame(const Look& look, QWidget* parent) : QFocusFrame(parent), m_look(look) {
        // It says how far the frame reaches.
        setStyle(look.style());
        connect(&look, &Look::didChange, this, qOverload<>(&QWidget::update));
    }

protected:
    void paintEvent(QPaintEvent*) override {
        if (!widget())
            return;
        const int margin = metrics::focusReach + widget()->property(insetProperty).toInt();
        QPainter painter(this);
        drawFocusRing(painter, rect().adjusted(margin, margin, -margin, -margin),
                      widget()->property(radiusProperty).toDouble(), m_look.theme());
    }

private:
    const Look& m_look;
};

} // namespace

void setFocusRadius(QWidget& control, double radius) {
    control.setProperty(radiusProperty, radius);
}

void setFocusInset(QWidget& control, int inset) {
    control.setProperty(insetProperty, inset);
}

FocusRing::FocusRing(const Look& look, QWidget& window)
    : QObject(&window), m_look(look), m_window(window) {
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget*, QWidget* focused) { follow(focused); });
}

void FocusRing::follow(QWidget* focused) {
    const bool isOurs =
        focused && focused->window() == &m_window && focused->property(radiusProperty).isValid();
    if (isOurs) {
        if (!m_frame)
            m_frame = new Frame(m_look, &m_window);
        m_frame->setWidget(focused);
    } else if (m_frame) {
        m_frame->setWidget(nullptr);
    }
}

} // namespace dropshade
