// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/Theme.h"

#include <QIcon>

namespace dropshade {

/// The image of a colour in a menu: a rounded square, with the colour's own alpha and nothing
/// beneath. It is drawn when it is shown and not before, at whatever size and scale is asked for; a
/// menu of hundreds may be built for one look at it.
[[nodiscard]] QIcon colorImage(const QColor& color, const Theme& theme);

} // namespace dropshade
