// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "interchange/PalettePoster.h"

#include <QByteArray>

#include <optional>

namespace dropshade {

/// Draws a palette as a poster: its name, and for each scale a row of flush swatches that carry
/// their value and label. On any thread; needs a QGuiApplication, for the fonts.
class PaletteImageRenderer {
public:
    /// A PNG with two pixels to the point, RGBA with 8 bits each. Nothing where the picture would
    /// take more than `mostPixelBytes` of memory.
    [[nodiscard]] static std::optional<QByteArray> pngData(const PalettePoster& poster);

    /// One page of PDF, a point to the point: vectors, and text that is text.
    [[nodiscard]] static std::optional<QByteArray> pdfData(const PalettePoster& poster);

    /// Some 2,900 swatches of a well-filled grid; names of many thousand characters widen the
    /// picture without end.
    static constexpr qint64 mostPixelBytes = qint64(512) << 20;
};

} // namespace dropshade
