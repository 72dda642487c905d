// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/Look.h"

#include <QTimer>
#include <QVariantAnimation>
#include <QWidget>

namespace dropshade {

/// The sign that something is being worked out. It waits a moment before it shows, so that what is
/// quick doesn't flicker; where the user wants nothing to move, it stands still.
class Spinner : public QWidget {
    Q_OBJECT

public:
    Spinner(const Look& look, const QString& name, QWidget* parent = nullptr);

    void setSpinning(bool spinning);
    [[nodiscard]] bool isSpinning() const { return m_isSpinning; }

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void appear();

    const Look& m_look;
    QString m_name;
    QTimer m_delay;
    QVariantAnimation m_turn;
    bool m_isSpinning = false;
    bool m_isShown = false;
};

} // namespace dropshade
