// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "convert/ValueText.h"

#include "support/QtPrinters.h"

#include <gtest/gtest.h>

namespace dropshade {
namespace {

QString digitsOf(const char* text, ColorFormat format) {
    QStringList digits;
    for (const ValueRun& run : valueRuns(QString::fromLatin1(text), format)) {
        if (run.isDigits)
            digits.append(run.text);
    }
    return digits.join(u' ');
}

TEST(ValueRuns, AreTheDigitsApartFromTheCode) {
    EXPECT_EQ(digitsOf("rgb(228 87 46 / 0.75)", ColorFormat::cssRGBA),
              QStringLiteral("228 87 46 0.75"));
    EXPECT_EQ(digitsOf("hsl(14 77.1% 53.7%)", ColorFormat::cssHSL),
              QStringLiteral("14 77.1% 53.7%"));
    EXPECT_EQ(digitsOf("Color.argb(255, 1, 2, 3)", ColorFormat::androidARGB),
              QStringLiteral("255 1 2 3"));
    EXPECT_EQ(digitsOf("[UIColor colorWithRed:0.89 green:0.34]", ColorFormat::objcUIColorRGB),
              QStringLiteral("0.89 0.34"));
}

TEST(ValueRuns, OfAHexTextAreAllButTheHash) {
    EXPECT_EQ(digitsOf("#E4572E", ColorFormat::hex), QStringLiteral("E4572E"));
    EXPECT_EQ(digitsOf("facade00", ColorFormat::hexa), QStringLiteral("facade00"));
}

TEST(ValueRuns, TogetherAreTheText) {
    const SRGBColor color(0.1, 0.2, 0.3, 0.4);
    for (const ColorFormatGroup& group : formatGroups()) {
        for (const ColorFormat format : group.formats) {
            const QString text = QString::fromStdString(formatted(color, format, {}));
            QString sum;
            for (const ValueRun& run : valueRuns(text, format))
                sum += run.text;
            EXPECT_EQ(sum, text);
        }
    }
}

TEST(ValueLines, BreakBehindArguments) {
    EXPECT_EQ(
        valueLines(QStringLiteral("NSColor(calibratedRed: 0.89, green: 0.34, blue: 0.18)"), 34),
        (QStringList{QStringLiteral("NSColor(calibratedRed: 0.89,"),
                     QStringLiteral("green: 0.34, blue: 0.18)")}));
}

TEST(ValueLines, AShortTextIsOneLine) {
    EXPECT_EQ(valueLines(QStringLiteral("#E4572E"), 7), QStringList{QStringLiteral("#E4572E")});
    EXPECT_EQ(valueLines(QString(), 7), QStringList{QString()});
}

TEST(ValueLines, NoCharacterIsLostInAnyWidth) {
    const SRGBColor color(0.1, 0.2, 0.3, 0.4);
    for (const ColorFormatGroup& group : formatGroups()) {
        for (const ColorFormat format : group.formats) {
            const QString text = QString::fromStdString(formatted(color, format, {}));
            for (int columns = -1; columns < 100; ++columns) {
                const QStringList lines = valueLines(text, columns);
                EXPECT_EQ(lines.join(QString()).remove(u' '), QString(text).remove(u' '));
                for (const QString& line : lines)
                    EXPECT_LE(line.size(), std::max(1, columns));
            }
        }
    }
}

} // namespace
} // namespace dropshade
