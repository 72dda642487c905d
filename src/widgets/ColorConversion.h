// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "color/ColorConversions.h"

#include <QColor>

namespace dropshade {

/// The colour for Qt to draw and to name, in the bytes that its texts have: Qt's own way down from
/// fractions cuts where those round.
[[nodiscard]] inline QColor drawable(const SRGBColor& color) {
    const RGBA8 bytes = rgba255(color);
    return {static_cast<int>(bytes.red), static_cast<int>(bytes.green),
            static_cast<int>(bytes.blue), static_cast<int>(bytes.alpha)};
}

} // namespace dropshade
