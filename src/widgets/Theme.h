// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QFont>

namespace dropshade {

/// Every colour of the interface by purpose, for one scheme of the desktop. Sizes are logical
/// pixels.
struct Theme {
    enum class Scheme { Light, Dark };

    [[nodiscard]] static Theme of(Scheme scheme);

    /// The desktop's fixed-width font for values in fields and on plates, at `scale` device pixels
    /// to the logical pixel.
    [[nodiscard]] static QFont valueFont(double scale);

    Scheme scheme = Scheme::Light;
    QColor surfacePlate;  ///< Ground of tooltips and of the loupe's plate.
    QColor surfaceSunken; ///< Ground of empty previews.
    QColor textOnPlate;
    QColor textPrimary;
    QColor linePlate;
    QColor dragShadow; ///< Under what floats over everything: dragged things and the loupe.

    // The loupe lies on any picture, so its edges are double: one shows wherever the other does
    // not.
    QColor loupeRing;
    QColor loupeRingEdge;
    QColor loupeInk;
    QColor loupeGrid;
    QColor loupePlateInnerEdge;
    QColor loupePlateOuterEdge;
};

} // namespace dropshade
