// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "color/SRGBColor.h"

#include <QString>

namespace dropshade {

/// "#rrggbb" in lower case, whatever the alpha: what a swatch read from a file of numbers is
/// called.
[[nodiscard]] QString hexText(const SRGBColor& color);

} // namespace dropshade
