// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "widgets/WindowFade.h"

#include <QPropertyAnimation>
#include <QWidget>

namespace dropshade {

QPropertyAnimation* fadeWindow(QWidget& window, const WindowFade& fade) {
    auto* animation = new QPropertyAnimation(&window, "windowOpacity", &window);
    animation->setDuration(static_cast<int>(fade.time.count()));
    animation->setStartValue(fade.start);
    animation->setEndValue(fade.end);
    animation->setEasingCurve(fade.curve);
    // Qt tells the X server of an opacity only when it has something to draw as well.
    QObject::connect(animation, &QVariantAnimation::valueChanged, &window,
                     [&window] { window.update(0, 0, 1, 1); });
    animation->start(QAbstractAnimation::DeleteWhenStopped);
    return animation;
}

} // namespace dropshade
