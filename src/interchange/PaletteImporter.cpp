// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "interchange/PaletteImporter.h"

#include "interchange/ASECoder.h"
#include "interchange/CLRCoder.h"
#include "interchange/GenericErrorText.h"
#include "interchange/PaletteJSONCoder.h"
#include "interchange/WholeFile.h"

#include <QFileInfo>

namespace dropshade {
namespace {

using Kind = PaletteImporterError::Kind;

QString withoutExtension(const QString& fileName) {
    const qsizetype dot = fileName.lastIndexOf(u'.');
    return dot < 0 ? fileName : fileName.left(dot);
}

void requireSupported(const QString& extension) {
    if (!PaletteImporter::supportedExtensions().contains(extension))
        throw PaletteImporterError(Kind::unsupportedFormat, extension);
}

/// The palette in `data`, under the name that the data or the format gives it.
Palette decoded(const QByteArray& data, const QString& extension, ReferenceTime now) {
    try {
        if (extension == QStringLiteral("ase"))
            return ASECoder::decode(data, now);
        if (extension == QStringLiteral("json"))
            return PaletteJSONCoder::makePalette(PaletteJSONCoder::decode(data), now);
        return CLRCoder::decode(data, now);
    } catch (const CLRCoderError&) {
        throw PaletteImporterError(Kind::malformedFile, genericErrorText("CLRCoderError"));
    } catch (const ASECoderError&) {
        throw PaletteImporterError(Kind::malformedFile, genericErrorText("ASECoderError"));
    } catch (const JsonError&) {
        throw PaletteImporterError(Kind::malformedFile,
                                   PaletteImporterError::tr("The data isn't in the correct format.",
                                                            "A file of JSON that isn't a palette"));
    }
}

Palette named(Palette palette, const QString& name) {
    if (!name.isEmpty())
        palette.setName(name);
    return palette;
}

} // namespace

QString PaletteImporterError::description() const {
    switch (m_kind) {
    case Kind::unsupportedFormat:
        return tr("This file type (.%1) isn't supported. Try .ase, .clr, or .json.",
                  "Import error; %1 is a file extension")
            .arg(m_payload);
    case Kind::malformedFile:
        break;
    }
    return tr("The file couldn't be read as a palette. %1", "Import error; %1 is the reason")
        .arg(m_payload);
}

const QSet<QString>& PaletteImporter::supportedExtensions() {
    static const QSet<QString> extensions = {QStringLiteral("ase"), QStringLiteral("clr"),
                                             QStringLiteral("json")};
    return extensions;
}

Palette PaletteImporter::load(const QString& path) const {
    const QFileInfo file(path);
    const QString extension = file.suffix().toLower();
    requireSupported(extension);
    try {
        return named(decoded(WholeFile::read(path), extension, m_now), file.completeBaseName());
    } catch (const FileError& error) {
        throw PaletteImporterError(Kind::malformedFile, error.description());
    }
}

Palette PaletteImporter::decode(const QByteArray& data, const QString& fileExtension,
                                const std::optional<QString>& suggestedName) const {
    const QString extension = fileExtension.toLower();
    requireSupported(extension);
    return named(decoded(data, extension, m_now),
                 withoutExtension(suggestedName.value_or(QString())));
}

} // namespace dropshade
