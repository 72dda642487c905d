// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "palettes/PaletteSwatch.h"
#include "widgets/Icon.h"
#include "widgets/Theme.h"

#include <QList>
#include <QPainter>

namespace dropshade {

/// An icon of `side` logical pixels around `center`, on whole device pixels.
void drawIcon(QPainter& painter, Icon icon, const QColor& ink, const QPointF& center, int side);

/// A swatch, with its star where it is a favourite.
void drawSwatch(QPainter& painter, const QRectF& area, const PaletteSwatch& swatch, bool isFavorite,
                const Theme& theme);

/// A joined strip of swatches that fill `area`.
void drawSpine(QPainter& painter, const QRectF& area, const QList<PaletteSwatch>& swatches,
               const Theme& theme);

/// The gap that a swatch would drop into.
void drawPhantom(QPainter& painter, const QRectF& area, const Theme& theme);

} // namespace dropshade
