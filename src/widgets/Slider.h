// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/HoverAmount.h"

#include <QSlider>

namespace dropshade {

/// A slider over a ruler with a mark for each step.
class Slider : public QSlider {
    Q_OBJECT

public:
    Slider(const Look& look, const QString& name, QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    [[nodiscard]] double positionOf(int shown) const;
    [[nodiscard]] int valueAt(double x) const;
    void paintTrack(QPainter& painter) const;
    void paintThumb(QPainter& painter) const;

    const Look& m_look;
    HoverAmount m_hover{m_look, *this};
};

} // namespace dropshade
