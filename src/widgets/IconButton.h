// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/Button.h"
#include "widgets/Icon.h"

namespace dropshade {

/// A square button with an icon alone. What it does is its tooltip, and its name to a screen
/// reader. Made checkable it is a toggle, which lights up in the accent while it is on.
class IconButton : public Button {
    Q_OBJECT

public:
    /// `side` is 32, or 28 in headers and 24 in fields.
    IconButton(const Look& look, Icon icon, const QString& name, int side,
               QWidget* parent = nullptr);
    IconButton(const Look& look, Icon icon, const QString& name, QWidget* parent = nullptr);

    void setDrawing(Icon icon);

    /// The icon's width and height, 16 unless it is set.
    void setDrawingSize(int side);

    [[nodiscard]] QSize sizeHint() const override { return {m_side, m_side}; }
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paint(QPainter& painter) override;

private:
    [[nodiscard]] QColor ground() const;
    [[nodiscard]] QColor ink() const;

    Icon m_icon;
    int m_side;
    int m_drawingSize;
};

} // namespace dropshade
