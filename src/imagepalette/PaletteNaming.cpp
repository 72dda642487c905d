// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "imagepalette/PaletteNaming.h"

#include <QStringList>
#include <QTextBoundaryFinder>

namespace dropshade {
namespace {

QString capitalized(const QString& word) {
    // What a user takes for one character may be several, as of a letter and its accent.
    QTextBoundaryFinder characters(QTextBoundaryFinder::Grapheme, word);
    const qsizetype firstEnd = characters.toNextBoundary();
    return word.left(firstEnd).toUpper() + word.mid(firstEnd).toLower();
}

} // namespace

std::optional<QString> tidiedName(const std::optional<QString>& fileName) {
    const QString trimmed = fileName.value_or(QString()).trimmed();
    if (trimmed.isEmpty())
        return std::nullopt;
    QString spaced = trimmed;
    spaced.replace(u'_', u' ').replace(u'-', u' ');
    QStringList words = spaced.split(u' ', Qt::SkipEmptyParts);
    if (words.isEmpty())
        return trimmed;
    for (QString& word : words)
        word = capitalized(word);
    return words.join(u' ');
}

} // namespace dropshade
