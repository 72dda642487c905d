// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "interchange/ColorList.h"
#include "palettes/Palette.h"

#include <exception>

namespace dropshade {

/// Bytes that are no colour list.
class CLRCoderError : public std::exception {
public:
    const char* what() const noexcept override { return "the colour list can't be read"; }
};

/// Palettes as colour lists, which are flat: a swatch goes out under the key "Scale / Label". A
/// list whose keys are mostly of that form comes in as scales again, any other as one scale
/// "Colors". Values come in as "#rrggbb", without alpha.
class CLRCoder {
public:
    /// The palette with new ids, modified `now`. The bytes don't hold its name, so it is "Imported
    /// Palette". Throws `CLRCoderError`.
    [[nodiscard]] static Palette decode(const QByteArray& data, ReferenceTime now);
    /// The palette of a list, named as the list is.
    [[nodiscard]] static Palette paletteOf(const ColorList& list, ReferenceTime now);

    /// The bytes of `listOf`.
    [[nodiscard]] static QByteArray encode(const Palette& palette);
    /// Keys that would occur twice are numbered. A scale without swatches leaves no trace.
    [[nodiscard]] static ColorList listOf(const Palette& palette);
};

} // namespace dropshade
