// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "interchange/PaletteExporter.h"

#include "interchange/ASECoder.h"
#include "interchange/CLRCoder.h"
#include "interchange/GenericErrorText.h"
#include "interchange/PaletteImageRenderer.h"
#include "interchange/PaletteJSONCoder.h"
#include "interchange/PaletteTextExporter.h"
#include "interchange/WholeFile.h"

#include <utility>

namespace dropshade {
namespace {

QByteArray rendered(std::optional<QByteArray> picture, const char* failure) {
    if (!picture)
        throw PaletteExporterError(failure);
    return *std::move(picture);
}

QByteArray content(const Palette& palette, PaletteExportFormat format) {
    switch (format) {
    case PaletteExportFormat::ase:
        if (!ASECoder::fits(palette))
            throw PaletteExporterError("A name is too long for the format.");
        return ASECoder::encode(palette);
    case PaletteExportFormat::clr:
        return CLRCoder::encode(palette);
    case PaletteExportFormat::json:
        return PaletteJSONCoder::encode(palette);
    case PaletteExportFormat::txt:
        return PaletteTextExporter::plainText(palette).toUtf8();
    case PaletteExportFormat::html:
        return PaletteTextExporter::html(palette).toUtf8();
    case PaletteExportFormat::css:
        return PaletteTextExporter::css(palette).toUtf8();
    case PaletteExportFormat::png:
        return rendered(PaletteImageRenderer::pngData(PalettePoster(palette)),
                        "Failed to render PNG.");
    case PaletteExportFormat::pdf:
        return rendered(PaletteImageRenderer::pdfData(PalettePoster(palette)),
                        "Failed to render PDF.");
    }
    Q_UNREACHABLE();
}

} // namespace

void PaletteExporter::exportPalette(const Palette& palette, PaletteExportFormat format) {
    m_requests.push_back({palette, format});
    m_next = m_scheduler.after(std::chrono::milliseconds(0), [this] {
        for (const Request& request : std::exchange(m_requests, {}))
            askWhere(request);
    });
}

void PaletteExporter::askWhere(const Request& request) {
    const FileKind kind{menuTitle(request.format), {fileExtension(request.format)}};
    m_panels.save(tr("Export Palette", "Title of the panel that asks where to write a palette"),
                  suggestedFileName(request.palette.name()), kind,
                  [this, request](const std::optional<QString>& path) {
                      if (path)
                          writeOrTell(request, *path);
                  });
}

void PaletteExporter::writeOrTell(const Request& request, const QString& path) {
    const auto tell = [this](const QString& reason) {
        m_alerts.warn(tr("Couldn't export palette", "Export error title"), reason);
    };
    try {
        write(request.palette, request.format, path);
    } catch (const FileError& error) {
        tell(error.description());
    } catch (const PaletteExporterError&) {
        tell(genericErrorText("PaletteExporterError"));
    }
}

QString PaletteExporter::suggestedFileName(const QString& paletteName) {
    QString name = paletteName.trimmed();
    if (name.isEmpty())
        return tr("Palette", "File name for a palette without a name");
    for (QChar& character : name) {
        if (QStringView(u"/:\\?%*|\"<>").contains(character))
            character = u'-';
    }
    return name;
}

void PaletteExporter::write(const Palette& palette, PaletteExportFormat format,
                            const QString& path) {
    WholeFile::write(path, content(palette, format));
}

} // namespace dropshade
