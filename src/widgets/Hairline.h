// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/Look.h"

#include <QPainter>
#include <QWidget>

namespace dropshade {

/// A line across, one pixel high.
class Hairline : public QWidget {
    Q_OBJECT

public:
    explicit Hairline(const Look& look, QWidget* parent = nullptr) : QWidget(parent), m_look(look) {
        setFixedHeight(1);
        connect(&look, &Look::didChange, this, qOverload<>(&QWidget::update));
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter(this).fillRect(rect(), m_look.theme().lineHairline);
    }

private:
    const Look& m_look;
};

} // namespace dropshade
