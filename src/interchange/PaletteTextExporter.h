// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "palettes/Palette.h"

#include <QCoreApplication>

namespace dropshade {

/// A palette as text for people and for other programs. The values of the swatches go out as they
/// are stored, with whatever alpha they have.
class PaletteTextExporter {
    Q_DECLARE_TR_FUNCTIONS(PaletteTextExporter)

public:
    /// A listing with underlined names. Widths count the characters that a reader sees.
    [[nodiscard]] static QString plainText(const Palette& palette);

    /// A sheet with a custom property for each swatch, named after its label, or else after its
    /// scale and place. Names in comments are not escaped.
    [[nodiscard]] static QString css(const Palette& palette);

    /// A page that needs no other file. No name, label or value can break its structure.
    [[nodiscard]] static QString html(const Palette& palette);
};

} // namespace dropshade
