// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "palettes/Palette.h"
#include "json/JsonReader.h"

#include <optional>

namespace dropshade {

struct DecodedSwatch {
    QString value;
    /// Absent where the text has no label or null; an empty one isn't an absent one.
    std::optional<QString> label;
};

struct DecodedScale {
    QString name;
    QList<DecodedSwatch> swatches;
};

/// What a preset says of a palette: names, values and labels, no ids and no dates. The built-in
/// presets and palette files in JSON are written this way.
struct DecodedPreset {
    QString name;
    QList<DecodedScale> scales;

    /// The palette with new ids at all levels, modified `now`. Nothing is cleaned: a value that is
    /// no colour stays as its text.
    [[nodiscard]] Palette palette(ReferenceTime now) const;
};

/// Takes one preset. Throws `JsonError` where a key but "label" is missing, or a value is of the
/// wrong kind. Keys that aren't known are ignored; of two alike the later one holds.
[[nodiscard]] DecodedPreset readPreset(JsonReader& json);

} // namespace dropshade
