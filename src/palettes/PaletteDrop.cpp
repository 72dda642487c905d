// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "palettes/PaletteDrop.h"

#include "interchange/PaletteImporter.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QMimeData>
#include <QSet>
#include <QUrl>

#include <array>

namespace dropshade {
namespace {

/// In the order in which they are tried.
const std::array<QString, 4> imageTypes{QStringLiteral("image/png"), QStringLiteral("image/jpeg"),
                                        QStringLiteral("image/tiff"), QString()};

/// What a file manager shows to be an image. The loader itself goes by content.
const QSet<QString>& imageExtensions() {
    static const QSet<QString> extensions{QStringLiteral("bmp"),  QStringLiteral("gif"),
                                          QStringLiteral("heic"), QStringLiteral("heif"),
                                          QStringLiteral("jpeg"), QStringLiteral("jpg"),
                                          QStringLiteral("png"),  QStringLiteral("tif"),
                                          QStringLiteral("tiff"), QStringLiteral("webp")};
    return extensions;
}

/// The first file on this machine that the drag names.
std::optional<QString> firstFile(const QMimeData& data) {
    for (const QUrl& url : data.urls()) {
        if (url.isLocalFile())
            return url.toLocalFile();
    }
    return std::nullopt;
}

bool isPaletteExtension(const QString& extension) {
    return PaletteImporter::supportedExtensions().contains(extension.toLower());
}

/// What a browser calls the thing that it drags: the end of its address.
std::optional<QString> suggestedName(const QMimeData& data) {
    const QList<QUrl> urls = data.urls();
    const QString name = urls.isEmpty() ? QString() : urls.first().fileName();
    return name.isEmpty() ? std::nullopt : std::optional(name);
}

struct OfferedPalette {
    QString type;
    QString extension;
};

/// The palette format of the first type that carries data, by the type's own name, or by the name
/// of the thing where its type is told to be nothing in particular.
std::optional<OfferedPalette> offeredPalette(const QMimeData& data) {
    const auto name = suggestedName(data);
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

std::optional<QString> imageType(const QMimeData& data) {
    const QStringList types = data.formats();
    for (const QString& wanted : imageTypes) {
        for (const QString& type : types) {
            if (wanted.isEmpty() ? type.startsWith(QLatin1String("image/")) : type == wanted)
                return type;
        }
    }
    return std::nullopt;
}

bool looksLikeImage(const QString& path) {
    return imageExtensions().contains(QFileInfo(path).suffix().toLower());
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
    if (const auto file = firstFile(data))
        return looksLikeImage(*file) ? PaletteDropKind::image : PaletteDropKind::paletteFile;
    if (imageType(data))
        return PaletteDropKind::image;
    return offeredPalette(data) ? std::optional(PaletteDropKind::paletteFile) : std::nullopt;
}

bool PaletteDrop::perform(const QMimeData& data, PaletteCommands& commands) {
    if (const auto file = firstFile(data)) {
        if (isPaletteExtension(QFileInfo(*file).suffix()))
            commands.importPaletteFile(*file);
        else
            commands.createPaletteFromImageFile(*file);
        return true;
    }
    if (const auto palette = offeredPalette(data)) {
        commands.importPaletteData(data.data(palette->type), palette->extension,
                                   suggestedName(data));
        return true;
    }
    const auto type = imageType(data);
    if (!type)
        return false;
    const QString name = suggestedName(data).value_or(QString());
    commands.createPaletteFromImageData(data.data(*type), QFileInfo(name).completeBaseName());
    return true;
}

} // namespace dropshade
