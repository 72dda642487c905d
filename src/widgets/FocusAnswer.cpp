// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "widgets/FocusAnswer.h"

#include <QGuiApplication>
#include <QWidget>
#include <QWindow>

namespace dropshade {

void answerFocusChanges(QWidget& window) {
    QObject::connect(qGuiApp, &QGuiApplication::focusWindowChanged, &window, [&window] {
        if (window.isVisible())
            window.update(0, 0, 1, 1);
    });
}

} // namespace dropshade
