// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/Button.h"

namespace dropshade {

/// A switch that is on or off.
class Toggle : public Button {
    Q_OBJECT

public:
    Toggle(const Look& look, const QString& name, QWidget* parent = nullptr);

    /// Its halo needs room around the track.
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paint(QPainter& painter) override;

private:
    void paintTrack(QPainter& painter, const QRectF& track, double on);
    void paintKnob(QPainter& painter, const QRectF& track, double on);

    AnimatedValue m_position;
};

} // namespace dropshade
