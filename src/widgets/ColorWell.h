// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/Button.h"

#include <optional>

namespace dropshade {

/// A colour that is also a button, or only a picture of one while nothing is to be done with it.
class ColorWell : public Button {
    Q_OBJECT

public:
    ColorWell(const Look& look, const QString& name, int side, QWidget* parent = nullptr);

    /// Nothing shows as an empty place.
    void setColor(const std::optional<QColor>& color);
    [[nodiscard]] const std::optional<QColor>& color() const { return m_color; }

    /// Draws the ring of the focus while what the button opened is open.
    void setOpen(bool open);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paint(QPainter& painter) override;

private:
    std::optional<QColor> m_color;
    int m_side;
    bool m_isOpen = false;
};

} // namespace dropshade
