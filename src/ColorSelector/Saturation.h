// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "ColorSelector/Selector.h"
#include "ColorSelector/SelectorGeometry.h"

#include <QPixmap>

namespace dropshade {

/// A square that edits saturation, to the right, and brightness, to the top, of one hue.
class Saturation : public Selector {
    Q_OBJECT

public:
    explicit Saturation(const Look& look, QWidget* parent = nullptr);

    [[nodiscard]] double saturation() const { return m_value.saturation; }
    [[nodiscard]] double brightness() const { return m_value.brightness; }

    /// These emit nothing.
    void setValue(double saturation, double brightness);
    void setHue(double hue);

    [[nodiscard]] int reach() const override;
    [[nodiscard]] QString spokenValue() const override;
    /// The saturation; a screen reader has one number for each slider.
    [[nodiscard]] double mainValue() const override { return m_value.saturation; }
    void userSetMainValue(double value) override;

Q_SIGNALS:
    /// The user chose another place.
    void valueChangedByUser(double saturation, double brightness);

protected:
    void pointAt(const QPointF& place) override;
    void step(double alongX, double alongY) override;
    void jump(bool toEnd) override;
    [[nodiscard]] QPointF thumbCenter() const override;
    [[nodiscard]] QColor thumbFill() const override;
    void paintTrack(QPainter& painter) override;

private:
    void userSet(const selector::SquareValue& value);
    [[nodiscard]] QPixmap drawnSquare(const QSize& size, double ratio) const;

    double m_hue = 0.0;
    selector::SquareValue m_value;
    /// Of this hue and size; to move the thumb changes neither.
    QPixmap m_square;
};

} // namespace dropshade
