// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "palettes/HoverState.h"
#include "widgets/Look.h"

#include <QWidget>

namespace dropshade {

/// What is under the pointer: the colour with its name and its value, or a hint.
class PalettesStatusBar : public QWidget {
    Q_OBJECT

public:
    PalettesStatusBar(const Look& look, HoverState& hover, QWidget* parent);

    void setMargin(int margin);

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void adopt();
    void paintSwatch(QPainter& painter, const PaletteSwatch& swatch) const;

    const Look& m_look;
    HoverState& m_hover;
    int m_margin;
};

} // namespace dropshade
