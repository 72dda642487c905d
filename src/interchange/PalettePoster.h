// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "palettes/Palette.h"

#include <QCoreApplication>
#include <QFont>
#include <QPainter>

namespace dropshade {

/// Where everything of a palette's poster lies, and the one routine that draws it, on pixels and
/// on paper alike. In points, from the top left corner.
///
/// It is made on the main thread, which alone may ask for the fonts of the desktop; then it can be
/// drawn on another one, by one thread at a time.
class PalettePoster {
    Q_DECLARE_TR_FUNCTIONS(PalettePoster)

public:
    explicit PalettePoster(const Palette& palette);

    /// Whole points; at least the margins and the title.
    [[nodiscard]] QSizeF size() const;

    /// Draws what lies in `visible`, a part of the canvas.
    void draw(QPainter& painter, const QRectF& visible) const;

private:
    void drawScaleName(QPainter& painter, const QString& name, double rowTop) const;
    void drawSwatch(QPainter& painter, const PaletteSwatch& swatch, const QRectF& cell) const;
    [[nodiscard]] double rowTop(qsizetype row) const;

    QFont m_titleFont;
    QFont m_scaleNameFont;
    QFont m_hexFont;
    QFont m_labelFont;
    QString m_title;
    QList<PaletteScale> m_scales;
    double m_titleHeight = 0;
    double m_scaleLabelWidth = 0;
    qsizetype m_maxSwatches = 0;
};

} // namespace dropshade
