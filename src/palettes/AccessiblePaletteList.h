// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

namespace dropshade {

/// Makes screen readers see the list of palettes as what it shows: each header, name, swatch and
/// button in view. To be called before the first list is made; further calls do nothing.
void installAccessiblePaletteList();

} // namespace dropshade
