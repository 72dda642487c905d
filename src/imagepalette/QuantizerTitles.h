// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

namespace dropshade {

/// What the user reads for each row of `quantizationAlgorithms` and of `swatchSortOrders`.
[[nodiscard]] QStringList algorithmTitles();
[[nodiscard]] QStringList sortOrderTitles();

} // namespace dropshade
