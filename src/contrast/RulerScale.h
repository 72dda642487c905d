// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "contrast/ContrastAlgorithm.h"

#include <QList>
#include <QString>

namespace dropshade {

/// Where measures lie on the ruler of the contrast window, as shares of its length from 0 to 1: a
/// ratio on a logarithmic scale from 1 to 21, an Lc by its magnitude from 0 to 110.
[[nodiscard]] double rulerShare(ContrastAlgorithm algorithm, double measure);

struct RulerMark {
    double share = 0.0;
    QString figure; ///< Of a minimum; empty for a plain mark.
};

[[nodiscard]] const QList<RulerMark>& rulerMarks(ContrastAlgorithm algorithm);

} // namespace dropshade
