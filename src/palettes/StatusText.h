// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "palettes/PaletteSwatch.h"

#include <functional>
#include <optional>

namespace dropshade {

/// What the status bar says of a swatch besides showing its colour.
struct StatusText {
    QString label; ///< May be empty.
    QString value; ///< As stored; may be left out where there is no room.
};

/// Widths of texts as the bar draws them, points.
struct StatusTextMeasure {
    std::function<double(const QString&)> label;
    std::function<double(const QString&)> value;
    double gap = 0.0;
};

/// The fullest of label and value, value alone, label alone and nothing that fits in `room` points.
[[nodiscard]] StatusText fittingStatusText(const PaletteSwatch& swatch, double room,
                                           const StatusTextMeasure& measure);

} // namespace dropshade
