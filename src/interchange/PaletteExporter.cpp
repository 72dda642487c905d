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

using Content = std::function<QByteArray()>;

QByteArray swatchExchange(const Palette& palette) {
    if (!ASECoder::fits(palette))
        throw PaletteExporterError("A name is too long for the format.");
    return ASECoder::encode(palette);
}

QByteArray rendered(std::optional<QByteArray> picture, const char* failure) {
    if (!picture)
        throw PaletteExporterError(failure);
    return *std::move(picture);
}

/// What makes the bytes of a file, on any thread.
Content contentOf(const Palette& palette, PaletteExportFormat format) {
    switch (format) {
    case PaletteExportFormat::ase:
        return [palette] { return swatchExchange(palette); };
    case PaletteExportFormat::clr:
        return [palette] { return CLRCoder::encode(palette); };
    case PaletteExportFormat::json:
        return [palette] { return PaletteJSONCoder::encode(palette); };
    case PaletteExportFormat::txt:
        return [palette] { return PaletteTextExporter::plainText(palette).toUtf8(); };
    case PaletteExportFormat::html:
        return [palette] { return PaletteTextExporter::html(palette).toUtf8(); };
    case PaletteExportFormat::css:
        return [palette] { return PaletteTextExporter::css(palette).toUtf8(); };
    case PaletteExportFormat::png:
        return [poster = PalettePoster(palette)] {
            return rendered(PaletteImageRenderer::pngData(poster), "Failed to render PNG.");
        };
    case PaletteExportFormat::pdf:
        return [poster = PalettePoster(palette)] {
            return rendered(PaletteImageRenderer::pdfData(poster), "Failed to render PDF.");
        };
    }
    Q_UNREACHABLE();
}

/// Writes the file, or tells the user's words for why not.
std::optional<QString> failureToWrite(const QString& path, const Content& content) {
    try {
        WholeFile::write(path, content());
    } catch (const FileError& error) {
        return error.description();
    } catch (const PaletteExporterError&) {
        return genericErrorText("PaletteExporterError");
    }
    return std::nullopt;
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
                      if (!path)
                          return;
                      m_line.append([this, path = *path,
                                     content = contentOf(request.palette, request.format)](
                                        const std::stop_token&) -> BackgroundQueue::Landing {
                          if (const auto failure = failureToWrite(path, content))
                              return [this, failure] { tell(*failure); };
                          return {};
                      });
                  });
}

void PaletteExporter::tell(const QString& failure) {
    m_line.forgetWaiting();
    const QString title = tr("Couldn't export palette", "Export error title");
    if (m_isAtEnd)
        qWarning("%s: %s", qUtf8Printable(title), qUtf8Printable(failure));
    else
        m_alerts.warn(title, failure);
}

void PaletteExporter::finish() {
    m_isAtEnd = true;
    m_line.finish();
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
    WholeFile::write(path, contentOf(palette, format)());
}

} // namespace dropshade
