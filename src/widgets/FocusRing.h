// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/Look.h"

#include <QFocusFrame>
#include <QPointer>

namespace dropshade {

/// Makes the focus ring of `control` follow corners of that radius. A control without a radius has
/// no ring from here: it draws its own.
void setFocusRadius(QWidget& control, double radius);

/// Makes the ring go around the control's shape where that is smaller than the widget by `inset` on
/// each side.
void setFocusInset(QWidget& control, int inset);

/// The ring around that control of one window that has the keyboard, outside the control. It takes
/// no room in layouts, and a screen reader does not meet it.
class FocusRing : public QObject {
    Q_OBJECT

public:
    /// Goes with `window`, its parent.
    FocusRing(const Look& look, QWidget& window);

private:
    void follow(QWidget* focused);

    const Look& m_look;
    QWidget& m_window;
    /// Moves from parent to parent, and may end with one.
    QPointer<QFocusFrame> m_frame;
};

} // namespace dropshade
