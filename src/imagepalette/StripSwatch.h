// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "imagepalette/ImageQuantizer.h"
#include "widgets/Button.h"

#include <functional>

namespace dropshade {

/// One colour of the preview.
class StripSwatch : public Button {
    Q_OBJECT

public:
    using NameOf = std::function<QString(const QuantizedColor&)>;

    StripSwatch(const Look& look, const NameOf& nameOf, QWidget* parent);

    void setColor(const QuantizedColor& color);
    [[nodiscard]] const QuantizedColor& color() const { return m_color; }
    /// How much of the ring around it is seen, from 0 to 1. The focus has a ring of its own.
    [[nodiscard]] double ringOpacity() const { return hasFocus() ? 0.0 : hoverAmount(); }

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paint(QPainter& painter) override;

private:
    const NameOf& m_nameOf;
    QuantizedColor m_color;
    double m_ringDrawn = 0.0;
};

} // namespace dropshade
