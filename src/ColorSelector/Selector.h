// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/Look.h"

#include <QWidget>

namespace dropshade {

/// What the colour selectors share: a track within the widget, a round thumb on it that drags and
/// steps by the arrow keys, one percent and ten with Shift. They hold no colour; whoever owns them
/// sets what they show, and hears of what the user does.
class Selector : public QWidget {
    Q_OBJECT

public:
    /// The thumb's width and height; 10 unless it is set.
    void setPointSize(double size);
    /// Rounds the track; 5 unless it is set.
    void setCornerSize(double radius);

    /// How far the widget goes beyond its track on each side: a thumb and its rings may.
    [[nodiscard]] virtual int reach() const = 0;

    /// The place of the track within the widget.
    [[nodiscard]] QRectF track() const;

    /// What a screen reader says as the value.
    [[nodiscard]] virtual QString spokenValue() const = 0;
    /// The same as a number from 0 to 1, and the way to set it.
    [[nodiscard]] virtual double mainValue() const = 0;
    virtual void userSetMainValue(double value) = 0;

protected:
    Selector(const Look& look, const QString& name, QWidget* parent);

    [[nodiscard]] const Look& look() const { return m_look; }
    [[nodiscard]] double pointSize() const { return m_pointSize; }
    [[nodiscard]] double cornerSize() const { return m_cornerSize; }

    /// The user points at a place of the track, perhaps beyond its ends.
    virtual void pointAt(const QPointF& place) = 0;
    /// The user steps along the axes, right and up being more.
    virtual void step(double alongX, double alongY) = 0;
    /// To the least or most along the main axis.
    virtual void jump(bool toEnd) = 0;

    [[nodiscard]] virtual QPointF thumbCenter() const = 0;
    [[nodiscard]] virtual QColor thumbFill() const = 0;
    virtual void paintTrack(QPainter& painter) = 0;

    /// Call after each change of the value.
    void valueChanged();

    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    const Look& m_look;
    double m_pointSize = 10.0;
    double m_cornerSize = 5.0;
    bool m_isDragging = false;
};

} // namespace dropshade
