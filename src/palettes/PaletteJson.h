// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "palettes/Palette.h"

#include <QByteArray>

#include <optional>

namespace dropshade {

// The form in which palettes are kept and synced, not that of palette files. An object for each
// palette, scale and swatch, with the names of the fields as keys; ids as text, a moment as seconds
// since 2001 to the last bit, and no key for an absent label.
//
// A reader fails as a whole: one bad swatch makes a list unreadable. Unknown keys are passed over,
// the last of two equal keys counts. Only a palette may lack something: without "id" it gets a new
// random one at each reading, without "lastModified" it is modified `now`. Null counts as missing.

/// Nothing where a moment is not finite, which has no form in JSON.
[[nodiscard]] std::optional<QByteArray> encodedPalette(const Palette& palette);
[[nodiscard]] std::optional<QByteArray> encodedPalettes(const QList<Palette>& palettes);

[[nodiscard]] std::optional<Palette> decodedPalette(const QByteArray& json, ReferenceTime now);
[[nodiscard]] std::optional<QList<Palette>> decodedPalettes(const QByteArray& json,
                                                            ReferenceTime now);

} // namespace dropshade
