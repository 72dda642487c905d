// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "palettes/Palette.h"
#include "json/JsonError.h"

#include <QByteArray>

#include <optional>

namespace dropshade {

struct DecodedSwatch {
    QString value;
    /// Absent where the file has no label or null; an empty one isn't an absent one.
    std::optional<QString> label;
};

struct DecodedScale {
    QString name;
    QList<DecodedSwatch> swatches;
};

struct DecodedPreset {
    QString name;
    QList<DecodedScale> scales;
};

/// A palette as JSON for other programs and for editing by hand: names, values and labels, no ids
/// and no dates. It is the one file format that keeps the alpha of a swatch, and a document has
/// the shape of a built-in preset.
class PaletteJSONCoder {
public:
    /// UTF-8 with two blanks of indentation, sorted keys and no line end behind the last brace. An
    /// absent label is written as an empty one; a lone surrogate as a substitute.
    [[nodiscard]] static QByteArray encode(const Palette& palette);

    /// Throws `JsonError` where the bytes are no JSON, or a key but "label" is missing, or a value
    /// is of the wrong kind. Keys that aren't known are ignored; of two alike the later one holds.
    /// The text is UTF-8, or UTF-16 or UTF-32 in either order of bytes, with or without a mark.
    [[nodiscard]] static DecodedPreset decode(const QByteArray& data);

    /// The palette with new ids at all levels, modified `now`. Nothing is cleaned: a value that is
    /// no colour stays as its text.
    [[nodiscard]] static Palette makePalette(const DecodedPreset& decoded, ReferenceTime now);
};

} // namespace dropshade
