// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "interchange/PaletteTextExporter.h"

#include "support/Palettes.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

#include <QCryptographicHash>

namespace dropshade {
namespace {

QByteArray page(const Palette& palette) {
    return PaletteTextExporter::html(palette).toUtf8();
}

QByteArray pageOf(const PaletteSwatch& swatch) {
    return page(makePalette("a", {PaletteScale(QStringLiteral("b"), {swatch})}));
}

QByteArray styleOf(const QByteArray& html) {
    const auto begin = html.indexOf("<style>");
    const QByteArray end = "</style>\n";
    return html.mid(begin, html.indexOf(end) + end.size() - begin);
}

TEST(HtmlExport, WritesEveryElementInItsPlace) {
    const Palette palette = makePalette(
        "Brand", {PaletteScale(QStringLiteral("Blue"),
                               {PaletteSwatch(QStringLiteral("#0000FF"), QStringLiteral(" Sea\n")),
                                PaletteSwatch(QStringLiteral("white"), QStringLiteral(" \n"))}),
                  makeScale("", {})});
    QByteArray html = page(palette);
    html.replace(styleOf(html), "STYLE\n");
    EXPECT_EQ(html, R"(<!DOCTYPE html>
<html lang="en">
<head>
<meta charset="utf-8">
<title>Brand</title>
STYLE
</head>
<body>
<h1>Brand</h1>
<div class="palette">
  <div class="scale">
    <div class="scale-name">Blue</div>
    <div class="swatches">
      <div class="swatch light" style="background:#0000FF">
        <div class="hex">#0000ff</div>
        <div class="label">Sea</div>
      </div>
      <div class="swatch dark" style="background:white">
        <div class="hex">white</div>
      </div>
    </div>
  </div>
  <div class="scale">
    <div class="scale-name"></div>
    <div class="swatches">
    </div>
  </div>
</div>
</body>
</html>
)");
}

TEST(HtmlExport, HasTheStyleBlockToTheByte) {
    const QByteArray style = styleOf(page(makePalette("a")));
    EXPECT_EQ(style.size(), 1451);
    EXPECT_EQ(QCryptographicHash::hash(style, QCryptographicHash::Sha256).toHex(),
              "14e124b9eacb16dc04042a8a1f4ee84bb556a9d62ca68117ab9b3e57f222a1b7");
}

TEST(HtmlExport, IsAnEmptyPaletteElementForAPaletteWithoutScales) {
    EXPECT_TRUE(page(makePalette("a"))
                    .endsWith("<h1>a</h1>\n<div class=\"palette\">\n</div>\n</body>\n</html>\n"));
}

TEST(HtmlExport, TitlesABlankNamePaletteAndTrimsNoOther) {
    EXPECT_TRUE(page(makePalette(" \n")).contains("<title>Palette</title>\n"));
    EXPECT_TRUE(page(makePalette(" a ")).contains("<title> a </title>\n"));
}

TEST(HtmlExport, EscapesANameInTheTitleAndTheHeading) {
    const QByteArray html = page(makePalette("<b>&\""));
    EXPECT_TRUE(html.contains("<title>&lt;b&gt;&amp;&quot;</title>\n"));
    EXPECT_TRUE(html.contains("<h1>&lt;b&gt;&amp;&quot;</h1>\n"));
}

TEST(HtmlExport, EscapesNamesValuesAndLabelsEverywhere) {
    const QString hostile = QStringLiteral("\"'></title>*/&");
    const QByteArray html = page(Palette(
        hostile, {PaletteScale(hostile, {PaletteSwatch(hostile, hostile)})}, ReferenceTime{}));
    EXPECT_EQ(html.count("&quot;&#39;&gt;&lt;/title&gt;*/&amp;"), 6);
    EXPECT_EQ(html.count("</title>"), 1);
}

TEST(HtmlExport, EscapesAQuoteThatACombiningMarkFollows) {
    EXPECT_TRUE(pageOf(PaletteSwatch(QStringLiteral("\"\u0301")))
                    .contains("style=\"background:&quot;\xCC\x81\">"));
}

TEST(HtmlExport, CopiesAllOtherCharacters) {
    const QString name = QStringLiteral("\x01\u202E\u2066`=/") + QString(10'000, u'x');
    EXPECT_TRUE(
        page(Palette(name, {}, ReferenceTime{})).contains("<h1>" + name.toUtf8() + "</h1>"));
    EXPECT_TRUE(page(Palette(QString(QChar(0xDC00)), {}, ReferenceTime{})).isValidUtf8());
}

} // namespace
} // namespace dropshade
