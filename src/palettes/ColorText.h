// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "color/SRGBColor.h"

#include <QString>

namespace dropshade {

/// The colour that this text means by `parseColor`, or opaque black where it means none.
[[nodiscard]] SRGBColor parsedColorOrBlack(const QString& text);

} // namespace dropshade
