// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "interchange/PaletteTextExporter.h"

#include "interchange/UniqueNames.h"

namespace dropshade {
namespace {

bool isSlugCharacter(QChar character) {
    return (character >= u'a' && character <= u'z') || (character >= u'0' && character <= u'9');
}

/// Lower-case letters and digits of ASCII, with one hyphen between them for all that stood there.
QString slug(const QString& text) {
    const QString lower = text.toLower();
    QString slug;
    bool isHyphenDue = false;
    for (const QChar character : lower) {
        if (!isSlugCharacter(character)) {
            isHyphenDue = !slug.isEmpty();
            continue;
        }
        if (isHyphenDue)
            slug += u'-';
        isHyphenDue = false;
        slug += character;
    }
    return slug;
}

QString variableName(const PaletteSwatch& swatch, const QString& scaleSlug, const QString& place) {
    const QString label = swatch.label().value_or(QString()).trimmed();
    const QString name = slug(label.isEmpty() ? scaleSlug + u'-' + place : label);
    return name.isEmpty() ? QStringLiteral("color-") + place : name;
}

QString comment(const QString& text) {
    return QStringLiteral("/* ") + text + QStringLiteral(" */\n");
}

} // namespace

QString PaletteTextExporter::css(const Palette& palette) {
    QString sheet;
    if (const QString name = palette.name().trimmed(); !name.isEmpty())
        sheet += comment(name);
    sheet += QStringLiteral(":root {\n");
    UniqueNames names([](const QString& name, qsizetype number) {
        return name + u'-' + QString::number(number);
    });
    for (qsizetype index = 0; index < palette.scales().size(); ++index) {
        const PaletteScale& scale = palette.scales().at(index);
        if (index > 0)
            sheet += u'\n';
        const QString name = scale.name().trimmed();
        if (!name.isEmpty())
            sheet += QStringLiteral("  ") + comment(name);
        const QString scaleSlug =
            slug(name.isEmpty() ? QStringLiteral("scale-") + QString::number(index + 1) : name);
        qsizetype place = 0;
        for (const PaletteSwatch& swatch : scale.swatches()) {
            const QString variable = variableName(swatch, scaleSlug, QString::number(++place));
            sheet += QStringLiteral("  --") + names.take(variable) + QStringLiteral(": ") +
                     swatch.value() + QStringLiteral(";\n");
        }
    }
    return sheet + QStringLiteral("}\n");
}

} // namespace dropshade
