// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "color/ColorFormat.h"
#include "interchange/PaletteExportFormat.h"
#include "palettes/Palette.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace dropshade {

/// What the palettes window asks of the rest of the program.
class PaletteCommands {
public:
    virtual ~PaletteCommands() = default;

    /// Copies the colour in `format`, or else in the format of the settings, and then closes the
    /// window if the settings want it.
    virtual void copyFromPalettes(const SRGBColor& color, std::optional<ColorFormat> format) = 0;

    /// Starts the making of a palette from an image that the user chooses.
    virtual void createPaletteFromImage() = 0;
    /// The same with this image; nothing happens where the file is none.
    virtual void createPaletteFromImageFile(const QString& path) = 0;
    virtual void createPaletteFromImageData(const QByteArray& data, const QString& name) = 0;
    /// Asks for a palette file and imports it.
    virtual void createPaletteFromFile() = 0;
    virtual void importPaletteFile(const QString& path) = 0;
    /// `fileExtension` says what the data is.
    virtual void importPaletteData(const QByteArray& data, const QString& fileExtension,
                                   const std::optional<QString>& suggestedName) = 0;
    /// Asks where to write the palette, once the menu that asked for it has gone.
    virtual void exportPaletteTo(const Palette& palette, PaletteExportFormat format) = 0;
};

} // namespace dropshade
