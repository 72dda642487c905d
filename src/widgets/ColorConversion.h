// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "color/SRGBColor.h"

#include <QColor>

namespace dropshade {

/// The colour for Qt to draw.
[[nodiscard]] inline QColor drawable(const SRGBColor& color) {
    return QColor::fromRgbF(static_cast<float>(color.red()), static_cast<float>(color.green()),
                            static_cast<float>(color.blue()), static_cast<float>(color.alpha()));
}

} // namespace dropshade
