// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

class QColor;
class QPainter;
class QWidget;

namespace dropshade {

/// Cuts the corners of a window that can't be translucent, so that they are not black.
void maskWhereOpaque(QWidget& window, double radius);

/// Such a window has whole pixels for its corners: of the surface's colour, and not of whatever Qt
/// takes for a window's.
void fillWhereOpaque(QPainter& painter, const QWidget& window, const QColor& surface);

} // namespace dropshade
