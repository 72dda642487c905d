// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

namespace dropshade {

/// Cuts the corners of a window that can't be translucent, so that they are not black.
void maskWhereOpaque(QWidget& window, double radius);

} // namespace dropshade
