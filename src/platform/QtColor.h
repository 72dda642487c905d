// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "color/SRGBColor.h"

#include <QColor>

namespace dropshade {

/// The colour for painting; Qt keeps 16 bits of each component.
[[nodiscard]] inline QColor toQColor(const SRGBColor& color) {
    return QColor::fromRgbF(static_cast<float>(color.red()), static_cast<float>(color.green()),
                            static_cast<float>(color.blue()), static_cast<float>(color.alpha()));
}

} // namespace dropshade
