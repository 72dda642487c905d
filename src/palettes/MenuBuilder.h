// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "palettes/MenuRow.h"
#include "widgets/Look.h"

class QMenu;
class QWidget;

namespace dropshade {

/// The menu with these rows; it deletes itself when it has closed. What destroys asks first unless
/// Shift is held when it is chosen.
[[nodiscard]] QMenu* makeMenu(const Look& look, const QList<MenuRow>& rows, QWidget* parent);

} // namespace dropshade
