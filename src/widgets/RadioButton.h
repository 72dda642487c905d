// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/HoverAmount.h"

#include <QRadioButton>

namespace dropshade {

/// What all choices of which one is taken share: a picture of their own for each state, all of it
/// to be clicked, a way to them by the Tab and arrow keys that a click does not take, and a tooltip
/// in the theme's look.
class RadioButton : public QRadioButton {
    Q_OBJECT

protected:
    RadioButton(const Look& look, QWidget* parent);

    [[nodiscard]] const Theme& theme() const { return m_look.theme(); }

    /// How far the pointer's picture has come, from 0 to 1.
    [[nodiscard]] double hoverAmount() const { return m_hover.value(); }
    [[nodiscard]] bool isPressed() const { return isEnabled() && isDown(); }

    /// The state's fill, where the button has no ground of its own.
    [[nodiscard]] QColor stateFill() const;

    [[nodiscard]] bool hitButton(const QPoint& position) const override;
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    virtual void paint(QPainter& painter) = 0;

private:
    const Look& m_look;
    HoverAmount m_hover{m_look, *this};
};

} // namespace dropshade
