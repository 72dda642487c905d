// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "imagepalette/ImageQuantizer.h"
#include "widgets/Look.h"

#include <QList>
#include <QWidget>

#include <functional>
#include <vector>

namespace dropshade {

class StripSwatch;

/// The colours of the palette to be, in one row, or in two from thirteen on. A click picks one;
/// Tab reaches the strip and arrow keys move within it.
class PreviewStrip : public QWidget {
    Q_OBJECT

public:
    /// `nameOf` is the text of a colour as the user wants to read it, asked at each need.
    PreviewStrip(const Look& look, std::function<QString(const QuantizedColor&)> nameOf,
                 QWidget* parent);

    void setColors(const std::vector<QuantizedColor>& colors);
    [[nodiscard]] int count() const { return m_count; }

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

Q_SIGNALS:
    void picked(const QuantizedColor& color);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    [[nodiscard]] int columns() const;
    [[nodiscard]] int heightOfRows() const;
    void addSwatch();
    void arrange();
    void focusSwatch(int index);

    const Look& m_look;
    std::function<QString(const QuantizedColor&)> m_nameOf;
    /// Some more than are shown: the first `m_count` are.
    QList<StripSwatch*> m_swatches;
    int m_count = 0;
};

} // namespace dropshade
