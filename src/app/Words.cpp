// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "app/Words.h"

#include <QFile>
#include <QLibraryInfo>

namespace dropshade {
namespace {

QString catalogue(const QString& language) {
    return QStringLiteral(":/words/dropshade_%1.qm").arg(language);
}

} // namespace

bool loadWords(QTranslator& words, const QLocale& locale) {
    const QStringList languages = locale.uiLanguages();
    for (const QString& name : languages) {
        // "de-CH" is served by "de".
        const QString file = catalogue(name.section(QLatin1Char('-'), 0, 0));
        if (QFile::exists(file))
            return words.load(file);
    }
    return words.load(catalogue(QStringLiteral("en")));
}

bool loadToolkitWords(QTranslator& toolkitWords, const QTranslator& words) {
    return toolkitWords.load(QLocale(words.language()), QStringLiteral("qtbase"),
                             QStringLiteral("_"),
                             QLibraryInfo::path(QLibraryInfo::TranslationsPath));
}

} // namespace dropshade
