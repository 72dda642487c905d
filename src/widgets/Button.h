// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/HoverAmount.h"

#include <QPushButton>

namespace dropshade {

/// What all buttons share: a picture of their own for each state, a way to them by the Tab key that
/// a click does not take, and a tooltip in the theme's look.
class Button : public QPushButton {
    Q_OBJECT

public:
    /// The shape that the focus ring follows.
    [[nodiscard]] double cornerRadius() const { return m_cornerRadius; }

protected:
    Button(const Look& look, QWidget* parent);

    [[nodiscard]] const Look& look() const { return m_look; }
    [[nodiscard]] const Theme& theme() const { return m_look.theme(); }

    /// How far the pointer's picture has come, from 0 to 1.
    [[nodiscard]] double hoverAmount() const { return m_hover.value(); }
    [[nodiscard]] bool isPressed() const { return isEnabled() && isDown(); }

    /// The state's fill over `ground`, both for controls on a surface and without one.
    [[nodiscard]] QColor filled(const QColor& ground) const;

    void setCornerRadius(double radius);

    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    virtual void paint(QPainter& painter) = 0;

private:
    const Look& m_look;
    HoverAmount m_hover{m_look, *this};
    double m_cornerRadius;
};

} // namespace dropshade
