// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "ColorSelector/BarSelector.h"

namespace dropshade {

/// Edits a hue, as a fraction of a turn. Both ends are red.
class HueSlider : public BarSelector {
    Q_OBJECT

public:
    explicit HueSlider(const Look& look, QWidget* parent = nullptr);

    [[nodiscard]] double hue() const { return value(); }
    /// Emits nothing.
    void setHue(double hue) { setValue(hue); }

    [[nodiscard]] QString spokenValue() const override;

Q_SIGNALS:
    /// The user chose another hue.
    void hueChanged(double hue);

protected:
    void announce(double value) override { Q_EMIT hueChanged(value); }
    [[nodiscard]] QColor thumbFill() const override;
    void paintTrack(QPainter& painter) override;
};

} // namespace dropshade
