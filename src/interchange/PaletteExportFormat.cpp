// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "interchange/PaletteExportFormat.h"

#include <QCoreApplication>

#include <array>

namespace dropshade {
namespace {

struct Row {
    PaletteExportFormat format;
    const char* extension;
    const char* menuTitle;
};

constexpr char context[] = "PaletteExportFormat";

constexpr std::array rows = {
    Row{PaletteExportFormat::ase, "ase",
        //: Export format
        QT_TRANSLATE_NOOP("PaletteExportFormat", "Adobe Swatch Exchange (.ase)")},
    Row{PaletteExportFormat::clr, "clr",
        //: Export format
        QT_TRANSLATE_NOOP("PaletteExportFormat", "Apple Color List (.clr)")},
    Row{PaletteExportFormat::json, "json",
        //: Export format
        QT_TRANSLATE_NOOP("PaletteExportFormat", "JSON (.json)")},
    Row{PaletteExportFormat::txt, "txt",
        //: Export format
        QT_TRANSLATE_NOOP("PaletteExportFormat", "Plain Text (.txt)")},
    Row{PaletteExportFormat::png, "png",
        //: Export format
        QT_TRANSLATE_NOOP("PaletteExportFormat", "PNG Image (.png)")},
    Row{PaletteExportFormat::pdf, "pdf",
        //: Export format
        QT_TRANSLATE_NOOP("PaletteExportFormat", "PDF Document (.pdf)")},
    Row{PaletteExportFormat::html, "html",
        //: Export format
        QT_TRANSLATE_NOOP("PaletteExportFormat", "HTML Document (.html)")},
    Row{PaletteExportFormat::css, "css",
        //: Export format
        QT_TRANSLATE_NOOP("PaletteExportFormat", "CSS Stylesheet (.css)")},
};

const Row& row(PaletteExportFormat format) {
    return rows.at(static_cast<std::size_t>(format));
}

} // namespace

QString fileExtension(PaletteExportFormat format) {
    return QLatin1String(row(format).extension);
}

QString menuTitle(PaletteExportFormat format) {
    return QCoreApplication::translate(context, row(format).menuTitle);
}

QList<PaletteExportFormat> exportMenuOrder() {
    using enum PaletteExportFormat;
    return {ase, clr, css, html, json, pdf, txt, png};
}

} // namespace dropshade
