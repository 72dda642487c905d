// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "palettes/PaletteDrop.h"

#include "imagepalette/ImageLoader.h"
#include "imagepalette/ImageOffer.h"
#include "interchange/PaletteImporter.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QMimeData>

namespace dropshade {
namespace {

bool isPaletteExtension(const QString& extension) {
    return PaletteImporter::supportedExtensions().contains(extension.toLower());
}

struct OfferedPalette {
    QString type;
    QString extension;
};

/// The palette format of the first type that carries data, by the type's own name, or by the name
/// of the thing where its type is told to be nothing in particular.
std::optional<OfferedPalette> offeredPalette(const QMimeData& data) {
    const auto name = ImageOffer(data).suggestedName();
    const QString suffix = name ? QFileInfo(*name).suffix().toLower() : QString();
    for (const QString& type : data.formats()) {
        if (type == QLatin1String("application/json"))
            return OfferedPalette{type, QStringLiteral("json")};
        if (type.startsWith(QLatin1String("application/octet-stream")) &&
            isPaletteExtension(suffix))
            return OfferedPalette{type, suffix};
    }
    return std::nullopt;
}

/// To whoever looks at its name; the loader itself goes by content.
bool looksLikeImage(const QString& path) {
    return ImageLoader::fileExtensions().contains(QFileInfo(path).suffix().toLower());
}

} // namespace

QString dropPrompt(PaletteDropKind kind) {
    if (kind == PaletteDropKind::image)
        //: Shown while an image is dragged over the window
        return QCoreApplication::translate("PaletteDrop", "Drop image to create a new palette");
    //: Shown while a palette file is dragged over the window
    return QCoreApplication::translate("PaletteDrop", "Drop palette file to import");
}

std::optional<PaletteDropKind> PaletteDrop::kindOf(const QMimeData& data) {
    const ImageOffer offer(data);
    if (const auto file = offer.file())
        return looksLikeImage(*file) ? PaletteDropKind::image : PaletteDropKind::paletteFile;
    if (offer.imageType())
        return PaletteDropKind::image;
    return offeredPalette(data) ? std::optional(PaletteDropKind::paletteFile) : std::nullopt;
}

bool PaletteDrop::perform(const QMimeData& data, PaletteCommands& commands) {
    const ImageOffer offer(data);
    if (const auto file = offer.file()) {
        if (isPaletteExtension(QFileInfo(*file).suffix()))
            commands.importPaletteFile(*file);
        else
            commands.createPaletteFromImageFile(*file);
        return true;
    }
    const auto name = offer.suggestedName();
    if (const auto palette = offeredPalette(data)) {
        commands.importPaletteData(data.data(palette->type), palette->extension, name);
        return true;
    }
    if (!offer.imageType())
        return false;
    commands.createPaletteFromImageData(offer.imageData(),
                                        name ? nameWithoutExtension(*name) : QString());
    return true;
}

} // namespace dropshade
