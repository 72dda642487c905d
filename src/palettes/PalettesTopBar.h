// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "palettes/PalettesModel.h"
#include "widgets/Look.h"

#include <QWidget>

namespace dropshade {

class IconButton;
class Slider;
class TextButton;

/// The size of the swatches, the switch that closes the window after a copy, and "New Palette".
class PalettesTopBar : public QWidget {
    Q_OBJECT

public:
    PalettesTopBar(const Look& look, PalettesModel& model, QWidget* parent);

    [[nodiscard]] QSize sizeHint() const override;

Q_SIGNALS:
    /// The add menu, whose upper right corner goes to that point of the screen.
    void addMenuRequested(const QPoint& upperRight);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void arrange();
    void openAddMenu(const QWidget& button);
    void adoptSettings();

    const Look& m_look;
    PalettesModel& m_model;
    Slider* m_size;
    IconButton* m_closeOnCopy;
    TextButton* m_add;
    IconButton* m_compactAdd;
    bool m_showsSquares = true;
};

} // namespace dropshade
