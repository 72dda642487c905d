// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "palettes/Palette.h"

#include <QByteArray>
#include <QCoreApplication>

#include <optional>

namespace dropshade {

/// Draws a palette as a poster: its name, and for each scale a row of flush swatches that carry
/// their value and label. Needs a QGuiApplication, for the fonts of the desktop.
class PaletteImageRenderer {
    Q_DECLARE_TR_FUNCTIONS(PaletteImageRenderer)

public:
    /// A PNG with two pixels to the point, RGBA with 8 bits each. Nothing where the picture would
    /// take more than `mostPixelBytes` of memory.
    [[nodiscard]] static std::optional<QByteArray> pngData(const Palette& palette);

    /// One page of PDF, a point to the point: vectors, and text that is text.
    [[nodiscard]] static std::optional<QByteArray> pdfData(const Palette& palette);

    /// Some 2,900 swatches of a well-filled grid; names of many thousand characters widen the
    /// picture without end.
    static constexpr qint64 mostPixelBytes = qint64(512) << 20;
};

} // namespace dropshade
