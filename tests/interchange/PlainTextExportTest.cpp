// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "interchange/PaletteTextExporter.h"

#include "support/Palettes.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

namespace dropshade {
namespace {

PaletteSwatch labelled(const char* value, const QString& label) {
    return PaletteSwatch(QString::fromUtf8(value), label);
}

QByteArray listing(const Palette& palette) {
    return PaletteTextExporter::plainText(palette).toUtf8();
}

QByteArray listingNamed(const QString& name) {
    return PaletteTextExporter::plainText(Palette(name, {}, ReferenceTime{})).toUtf8();
}

TEST(PlainTextExport, UnderlinesNamesAndAlignsLabelsBehindValues) {
    EXPECT_EQ(
        listing(makePalette("Brand", {PaletteScale(QStringLiteral("Blue"),
                                                   {labelled("#0000ff", QStringLiteral("Primary")),
                                                    PaletteSwatch(QStringLiteral("#00f"))}),
                                      makeScale("Red", {"#f00"})})),
        "Brand\n=====\n\nBlue\n----\n#0000ff  Primary\n#00f   \n\nRed\n---\n#f00\n");
}

TEST(PlainTextExport, IsTheTitleAloneForAPaletteWithoutScales) {
    EXPECT_EQ(listing(makePalette("a")), "a\n=\n");
}

TEST(PlainTextExport, NamesWhatHasNoName) {
    EXPECT_EQ(listing(makePalette("", {makeScale("", {})})),
              "Palette\n=======\n\nUntitled\n--------\n");
}

TEST(PlainTextExport, DoesNotTrimNames) {
    EXPECT_EQ(listing(makePalette("  ", {makeScale(" a ", {})})), "  \n==\n\n a \n---\n");
}

TEST(PlainTextExport, CountsTheCharactersThatAReaderSees) {
    EXPECT_EQ(listingNamed(QStringLiteral(u"Cafe\u0301")), "Cafe\xCC\x81\n====\n");
    EXPECT_TRUE(listingNamed(QStringLiteral(u"🎨")).endsWith("\n=\n"));
    EXPECT_TRUE(listingNamed(QStringLiteral(u"🇩🇪a")).endsWith("\n==\n"));
    EXPECT_EQ(listing(makePalette("a", {makeScale("b", {"e\xCC\x81", "abc"})})),
              "a\n=\n\nb\n-\ne\xCC\x81  \nabc\n");
}

TEST(PlainTextExport, TrimsBlanksAndTabsOffLabelsAndLeavesOutBlankOnes) {
    const PaletteScale scale(QStringLiteral("b"),
                             {labelled("red", QStringLiteral("   ")), labelled("red", QString()),
                              labelled("red", QStringLiteral(" \t x y\t ")),
                              labelled("red", QStringLiteral("\t"))});
    EXPECT_EQ(listing(makePalette("a", {scale})), "a\n=\n\nb\n-\nred\nred\nred  x y\nred\n");
}

TEST(PlainTextExport, LeavesLineEndsInLabels) {
    const PaletteScale scale(QStringLiteral("b"), {labelled("red", QStringLiteral(" x\ny\n "))});
    EXPECT_EQ(listing(makePalette("a", {scale})), "a\n=\n\nb\n-\nred  x\ny\n\n");
}

TEST(PlainTextExport, KeepsHostileNamesAsTheyAre) {
    const QString name = QStringLiteral("</title>\"'*/\u202E\x01");
    EXPECT_TRUE(PaletteTextExporter::plainText(Palette(name, {}, ReferenceTime{}))
                    .startsWith(name + u'\n'));
    EXPECT_EQ(listingNamed(QString(10'000, u'x')).size(), 20'002);
    EXPECT_TRUE(listingNamed(QString(QChar(0xD800))).endsWith("\n=\n"));
}

} // namespace
} // namespace dropshade
