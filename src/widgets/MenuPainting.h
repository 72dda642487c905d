// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/Theme.h"

#include <QPainter>
#include <QStyleOption>

namespace dropshade {

/// Between a menu's edge and its rows.
inline constexpr int menuPadding = 6;

void drawMenuPanel(QPainter& painter, const QRect& panel, const Theme& theme);

void drawMenuRow(QPainter& painter, const QStyleOptionMenuItem& item, const Theme& theme);

/// The strip that stands for the rows beyond the end of a menu taller than the screen.
void drawMenuScroller(QPainter& painter, const QStyleOption& option, const Theme& theme);

/// The size of a row whose words take `contents`.
[[nodiscard]] QSize menuRowSize(const QStyleOptionMenuItem& item, const QSize& contents);

} // namespace dropshade
