// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/Icon.h"
#include "widgets/Look.h"
#include "widgets/Metrics.h"

#include <QPainter>
#include <QWidget>

namespace dropshade {

/// Stands beside what is wrong, its icon in the middle. As large as the icon until it is given
/// another size.
class ErrorSign : public QWidget {
    Q_OBJECT

public:
    explicit ErrorSign(const Look& look, QWidget* parent = nullptr)
        : QWidget(parent), m_look(look) {
        setFixedSize(metrics::icon, metrics::icon);
        connect(&look, &Look::didChange, this, qOverload<>(&QWidget::update));
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter(this).drawPixmap((width() - metrics::icon) / 2, (height() - metrics::icon) / 2,
                                  iconPixmap(Icon::ExclamationCircle, m_look.theme().dangerBase,
                                             metrics::icon, devicePixelRatioF()));
    }

private:
    const Look& m_look;
};

} // namespace dropshade
