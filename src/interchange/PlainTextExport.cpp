// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "interchange/PaletteTextExporter.h"

#include "interchange/WithoutBlanks.h"

#include <QTextBoundaryFinder>

#include <algorithm>

namespace dropshade {
namespace {

qsizetype characterCount(const QString& text) {
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    qsizetype count = 0;
    while (finder.toNextBoundary() > 0)
        ++count;
    return count;
}

QString underlined(const QString& text, QChar line) {
    return text + u'\n' + QString(characterCount(text), line) + u'\n';
}

void appendRow(QString& listing, const PaletteSwatch& swatch, qsizetype width) {
    listing += swatch.value();
    listing += QString(width - characterCount(swatch.value()), u' ');
    const QString label = withoutBlanks(swatch.label().value_or(QString()));
    if (!label.isEmpty())
        listing += QStringLiteral("  ") + label;
    listing += u'\n';
}

} // namespace

QString PaletteTextExporter::plainText(const Palette& palette) {
    const QString title = palette.name().isEmpty()
                              ? tr("Palette", "Title of a palette without a name")
                              : palette.name();
    QString listing = underlined(title, u'=');
    for (const PaletteScale& scale : palette.scales()) {
        const QString name = scale.name().isEmpty()
                                 ? tr("Untitled", "Heading of a scale without a name")
                                 : scale.name();
        listing += u'\n' + underlined(name, u'-');
        qsizetype width = 0;
        for (const PaletteSwatch& swatch : scale.swatches())
            width = std::max(width, characterCount(swatch.value()));
        for (const PaletteSwatch& swatch : scale.swatches())
            appendRow(listing, swatch, width);
    }
    return listing;
}

} // namespace dropshade
