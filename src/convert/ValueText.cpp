// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "convert/ValueText.h"

#include <algorithm>

namespace dropshade {

namespace {

bool isHex(ColorFormat format) {
    return format == ColorFormat::hex || format == ColorFormat::hexa;
}

bool isDigit(QChar character, ColorFormat format) {
    if (isHex(format))
        return character.isLetterOrNumber();
    return (character >= u'0' && character <= u'9') || character == u'.' || character == u'%';
}

/// Points and signs belong to a number only within one: "Color.rgb(" has none.
bool isNumberStart(QChar character, ColorFormat format) {
    return isHex(format) ? character.isLetterOrNumber() : character >= u'0' && character <= u'9';
}

/// Whether a line may end before the blank at `index`.
bool mayBreak(const QString& text, qsizetype index) {
    if (text[index] != u' ' || index == 0)
        return false;
    const QChar before = text[index - 1];
    return before == u',' || before == u'%' || before == u'/' || before.isDigit();
}

} // namespace

QList<ValueRun> valueRuns(const QString& text, ColorFormat format) {
    QList<ValueRun> runs;
    for (const QChar character : text) {
        const bool continues = !runs.isEmpty() && runs.last().isDigits;
        const bool isDigits =
            continues ? isDigit(character, format) : isNumberStart(character, format);
        if (runs.isEmpty() || runs.last().isDigits != isDigits)
            runs.append({QString(), isDigits});
        runs.last().text.append(character);
    }
    return runs;
}

QStringList valueLines(const QString& text, int columns) {
    const qsizetype most = std::max(1, columns);
    QStringList lines;
    qsizetype start = 0;
    while (text.size() - start > most) {
        qsizetype end = start + most;
        while (end > start && !mayBreak(text, end))
            --end;
        const bool isAtArgument = end > start;
        if (!isAtArgument)
            end = start + most;
        lines.append(text.mid(start, end - start));
        start = end + (isAtArgument ? 1 : 0);
    }
    lines.append(text.mid(start));
    return lines;
}

} // namespace dropshade
