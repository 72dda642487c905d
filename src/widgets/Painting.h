// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/Theme.h"

#include <QPainter>
#include <QRectF>

namespace dropshade {

// How the interface draws its few shapes. All of it is in logical pixels.

/// A control's edge is one device pixel, whatever the scale.
[[nodiscard]] double hairlineWidth(const QPainter& painter);

void fillRounded(QPainter& painter, const QRectF& area, double radius, const QColor& color);

/// A line of `width` along the edge of `area`, wholly inside it.
void strokeInside(QPainter& painter, const QRectF& area, double radius, double width,
                  const QColor& color);

/// The same, one device pixel wide.
void strokeEdge(QPainter& painter, const QRectF& area, double radius, const QColor& color);

/// The ring around a focused control whose own shape is `control`.
void drawFocusRing(QPainter& painter, const QRectF& control, double radius, const Theme& theme);

/// The mark of the current or selected row.
void drawTick(QPainter& painter, const QRectF& row, const Theme& theme);

/// Squares of `side` in two greys, all over `area`.
void drawCheckerboard(QPainter& painter, const QRectF& area, int side, const Theme& theme);

/// A colour as the interface shows one: over squares where it lets light through, and with an edge,
/// so that white and black never melt into the ground.
void drawColor(QPainter& painter, const QRectF& area, double radius, const QColor& color,
               const Theme& theme);

/// The place of a colour where there is none.
void drawNoColor(QPainter& painter, const QRectF& area, double radius, const Theme& theme);

/// A place to drop things on: dashed, over `ground`; in the accent while such a drag is over it.
void drawDropZone(QPainter& painter, const QRectF& zone, const Theme& theme, bool isTargeted,
                  const QColor& ground);

/// One line of words in that font and the painter's pen, from the left of `area` and in its middle;
/// what does not fit gives way to an ellipsis. The line is level with others in that font also
/// where taller fonts lend it signs, such as emoji.
void drawWords(QPainter& painter, const QFont& font, const QRectF& area, const QString& words);

void drawShadow(QPainter& painter, const QRectF& area, double radius, const Shadow& shadow);

/// What a floating surface needs around itself for its shadow.
[[nodiscard]] int popupShadowReach(const Theme& theme);

/// `below` with `above` laid over it, `amount` of it from 0 to 1.
[[nodiscard]] QColor blended(const QColor& below, const QColor& above, double amount = 1.0);

} // namespace dropshade
