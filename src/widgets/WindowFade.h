// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QEasingCurve>

#include <chrono>

class QPropertyAnimation;
class QWidget;

namespace dropshade {

struct WindowFade {
    double start = 0.0;
    double end = 1.0;
    std::chrono::milliseconds time;
    QEasingCurve::Type curve;
};

/// Starts to take the window's opacity from the one to the other. The result goes when it is over,
/// or with the window.
QPropertyAnimation* fadeWindow(QWidget& window, const WindowFade& fade);

} // namespace dropshade
