// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "interchange/PaletteTextExporter.h"

#include "support/Palettes.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

#include <QSet>

namespace dropshade {
namespace {

PaletteScale labelledScale(const char* name, const QStringList& labels) {
    QList<PaletteSwatch> swatches;
    for (const QString& label : labels)
        swatches.append(PaletteSwatch(QStringLiteral("red"), label));
    return PaletteScale(QString::fromUtf8(name), swatches);
}

/// The names of the custom properties, in order.
QStringList variables(const QList<PaletteScale>& scales) {
    const QString sheet = PaletteTextExporter::css(makePalette("", scales));
    QStringList names;
    for (const QString& line : sheet.split(u'\n')) {
        if (line.startsWith(QStringLiteral("  --")))
            names.append(line.mid(4, line.indexOf(u':') - 4));
    }
    return names;
}

QStringList list(std::initializer_list<const char*> names) {
    QStringList result;
    for (const char* name : names)
        result.append(QString::fromUtf8(name));
    return result;
}

TEST(CssExport, WritesASheetOfCustomProperties) {
    const Palette palette = makePalette(
        " Brand\n", {PaletteScale(QStringLiteral(" Blue "),
                                  {PaletteSwatch(QStringLiteral("#0000FF"), QStringLiteral("Sea")),
                                   PaletteSwatch(QStringLiteral("rgba(0, 0, 0, 0.5)"))}),
                     makeScale(" ", {"red"})});
    EXPECT_EQ(PaletteTextExporter::css(palette).toUtf8(), "/* Brand */\n"
                                                          ":root {\n"
                                                          "  /* Blue */\n"
                                                          "  --sea: #0000FF;\n"
                                                          "  --blue-2: rgba(0, 0, 0, 0.5);\n"
                                                          "\n"
                                                          "  --scale-2-1: red;\n"
                                                          "}\n");
}

TEST(CssExport, IsAnEmptyBlockForAPaletteWithoutScales) {
    EXPECT_EQ(PaletteTextExporter::css(makePalette(" \t\n")).toUtf8(), ":root {\n}\n");
}

TEST(CssExport, FallsBackToTheScaleForABlankLabel) {
    EXPECT_EQ(variables({labelledScale("Blue", list({"   ", "", "\n"}))}),
              list({"blue-1", "blue-2", "blue-3"}));
}

TEST(CssExport, LeavesTheScaleOutOfALabelledName) {
    EXPECT_EQ(variables({labelledScale("a", list({"Primary"})),
                         labelledScale("b", list({"primary", "PRIMARY!"}))}),
              list({"primary", "primary-2", "primary-3"}));
}

TEST(CssExport, MakesUnlabelledAndLabelledNamesUniqueTogether) {
    EXPECT_EQ(variables({makeScale("Blue", {"red", "red"}), makeScale("blue!", {"red"}),
                         labelledScale("c", list({"Blue 2", "blue-1-2", "Blue-1"}))}),
              list({"blue-1", "blue-2", "blue-1-2", "blue-2-2", "blue-1-2-2", "blue-1-3"}));
}

TEST(CssExport, SlugsASymbolScaleToThePlaceAndKeepsItsComment) {
    const QString sheet = PaletteTextExporter::css(makePalette("", {makeScale("!!!", {"red"})}));
    EXPECT_EQ(sheet.toUtf8(), ":root {\n  /* !!! */\n  --1: red;\n}\n");
}

TEST(CssExport, NamesASymbolLabelAfterItsPlace) {
    EXPECT_EQ(variables({labelledScale("a", list({"x", "y", "***"}))}),
              list({"x", "y", "color-3"}));
}

TEST(CssExport, SlugsLowerCaseAsciiWithOneHyphenForARun) {
    EXPECT_EQ(variables({labelledScale(
                  "a", list({"Café au Lait", "--A  b__C--", "色", "🎨 9", "\xE2\x84\xAA", "ÀÉ1"}))}),
              list({"caf-au-lait", "a-b-c", "color-3", "9", "k", "1"}));
}

TEST(CssExport, LeavesCommentsAndValuesUnescaped) {
    EXPECT_EQ(PaletteTextExporter::css(makePalette("a */ b", {makeScale("*/", {"x; } y"})})),
              QStringLiteral("/* a */ b */\n:root {\n  /* */ */\n  --1: x; } y;\n}\n"));
}

TEST(CssExport, NamesManyEqualLabelsInLinearTime) {
    QStringList labels;
    for (int index = 0; index < 100'000; ++index)
        labels.append(QStringLiteral("x"));
    const QStringList names = variables({labelledScale("a", labels)});
    EXPECT_EQ(QSet<QString>(names.cbegin(), names.cend()).size(), 100'000);
    EXPECT_EQ(names.last(), QStringLiteral("x-100000"));
}

} // namespace
} // namespace dropshade
