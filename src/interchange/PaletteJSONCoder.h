// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "palettes/DecodedPreset.h"
#include "json/JsonError.h"

#include <QByteArray>

namespace dropshade {

/// A palette as JSON for other programs and for editing by hand: names, values and labels, no ids
/// and no dates. It is the one file format that keeps the alpha of a swatch, and a document has
/// the shape of a built-in preset.
class PaletteJSONCoder {
public:
    /// UTF-8 with two blanks of indentation, sorted keys and no line end behind the last brace. An
    /// absent label is written as an empty one; a lone surrogate as a substitute.
    [[nodiscard]] static QByteArray encode(const Palette& palette);

    /// Throws `JsonError` where the bytes are no JSON or no preset, see `readPreset`. The text is
    /// UTF-8, or UTF-16 or UTF-32 in either order of bytes, with or without a mark.
    [[nodiscard]] static DecodedPreset decode(const QByteArray& data);

    /// The palette with new ids at all levels, modified `now`.
    [[nodiscard]] static Palette makePalette(const DecodedPreset& decoded, ReferenceTime now);
};

} // namespace dropshade
