// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "ColorSelector/BarSelector.h"

namespace dropshade {

/// Edits an alpha, over squares that show through. The colour itself is only drawn.
class AlphaSlider : public BarSelector {
    Q_OBJECT

public:
    explicit AlphaSlider(const Look& look, QWidget* parent = nullptr);

    [[nodiscard]] double alpha() const { return value(); }
    /// Emits nothing.
    void setAlpha(double alpha) { setValue(alpha); }

    /// What the track and the thumb show, each component 0 to 1.
    void setColor(double hue, double saturation, double brightness);

    [[nodiscard]] QString spokenValue() const override;

Q_SIGNALS:
    /// The user chose another alpha.
    void alphaChanged(double alpha);

protected:
    void announce(double value) override { Q_EMIT alphaChanged(value); }
    [[nodiscard]] QColor thumbFill() const override;
    void paintTrack(QPainter& painter) override;

private:
    QColor m_color{Qt::black};
};

} // namespace dropshade
