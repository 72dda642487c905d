// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QIcon>
#include <QString>

namespace dropshade {

/// An icon in one colour, for the status area: the drawing at `resource`, an SVG on a grid of 18
/// with `currentColor` for its ink, at every size that panels ask for. It is scaled only by halves
/// of its grid, so that its lines stay on whole pixels, and centred in what is left. A resource
/// that is missing gives a null icon.
[[nodiscard]] QIcon tintedStatusIcon(const QString& resource, const QColor& ink);

} // namespace dropshade
