// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "interchange/PaletteImageRenderer.h"

#include "support/Palettes.h"
#include "support/QtPrinters.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>

#include <gmock/gmock.h>

#include <cmath>
#include <future>

namespace dropshade {
namespace {

using testing::HasSubstr;
using testing::Not;

int titleHeight() {
    QFont font = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
    font.setPixelSize(28);
    font.setWeight(QFont::Bold);
    font.setHintingPreference(QFont::PreferNoHinting);
    return int(std::ceil(QFontMetricsF(font).height()));
}

QByteArray pngData(const Palette& palette) {
    return PaletteImageRenderer::pngData(PalettePoster(palette)).value_or(QByteArray());
}

QImage png(const Palette& palette) {
    return QImage::fromData(pngData(palette), "png");
}

/// The middle of the picture's right part of a cell, where no text of a few letters reaches.
QRgb cellPixel(const QImage& image, int firstX, int row, int column) {
    const int x = firstX + 112 * column + 105;
    const int y = 40 + titleHeight() + 28 + 82 * row + 38;
    return image.pixel(2 * x, 2 * y);
}

TEST(PaletteImageRendererTest, AnEmptyPaletteIsItsTitleAndTheMargins) {
    const QImage image = png(makePalette("Brand"));
    EXPECT_EQ(image.height(), 2 * (titleHeight() + 80));
    EXPECT_EQ(image.pixel(0, 0), 0xffffffffU);
}

TEST(PaletteImageRendererTest, ThePngHasTwoPixelsToThePointAndAnAlphaChannel) {
    const QImage image = png(makePalette("A", {makeScale("", {"#f00", "#0f0"})}));
    EXPECT_EQ(image.size(), QSize(2 * (80 + 224), 2 * (80 + titleHeight() + 28 + 76)));
    EXPECT_TRUE(image.hasAlphaChannel());
    EXPECT_EQ(image.depth(), 32);
    EXPECT_EQ(image.dotsPerMeterX(), 5669);
}

TEST(PaletteImageRendererTest, SwatchesOfScalesWithoutNamesStillStandSixteenPointsToTheRight) {
    const QImage image = png(makePalette("A", {makeScale(" ", {"#f00", "#0f0"})}));
    const int y = 2 * (40 + titleHeight() + 28 + 2);
    EXPECT_EQ(image.pixel(2 * 56 - 1, y), 0xffffffffU);
    EXPECT_EQ(image.pixel(2 * 56, y), 0xffff0000U);
    EXPECT_EQ(image.pixel(2 * (56 + 224) - 1, y), 0xff00ff00U);
    EXPECT_EQ(image.pixel(2 * (56 + 224), y), 0xffffffffU);
}

TEST(PaletteImageRendererTest, RowsOfDifferentLengthStayLeftAlignedSixPointsApart) {
    const QImage image =
        png(makePalette("A", {makeScale("", {"#f00"}), makeScale("", {"#00f", "#0f0"})}));
    EXPECT_EQ(cellPixel(image, 56, 0, 0), 0xffff0000U);
    EXPECT_EQ(cellPixel(image, 56, 0, 1), 0xffffffffU);
    EXPECT_EQ(cellPixel(image, 56, 1, 0), 0xff0000ffU);
    EXPECT_EQ(cellPixel(image, 56, 1, 1), 0xff00ff00U);
    const int gap = 2 * (40 + titleHeight() + 28 + 76 + 3);
    EXPECT_EQ(image.pixel(2 * 60, gap), 0xffffffffU);
}

TEST(PaletteImageRendererTest, ASwatchWithAlphaShowsTheWhiteCanvasThroughIt) {
    const QImage image = png(makePalette("A", {makeScale("", {"#00000080"})}));
    EXPECT_NEAR(qRed(cellPixel(image, 56, 0, 0)), 127, 1);
    EXPECT_EQ(qAlpha(cellPixel(image, 56, 0, 0)), 255);
}

TEST(PaletteImageRendererTest, AVeryLongTitleWidensTheCanvas) {
    const QImage plain = png(makePalette("A", {makeScale("", {"#f00"})}));
    const QImage wide = png(makePalette(QByteArray(200, 'W'), {makeScale("", {"#f00"})}));
    EXPECT_GT(wide.width(), 2 * 200 * 20);
    EXPECT_EQ(wide.height(), plain.height());
    EXPECT_EQ(cellPixel(wide, 56, 0, 0), 0xffff0000U);
}

TEST(PaletteImageRendererTest, AScaleWithoutSwatchesTakesItsRowAndDrawsItsName) {
    const QImage image = png(makePalette("A", {makeScale("Empty", {}), makeScale("", {"#f00"})}));
    EXPECT_EQ(image.height(), 2 * (80 + titleHeight() + 28 + 2 * 76 + 6));
    const QImage row = image.copy(0, 2 * (40 + titleHeight() + 28), image.width(), 2 * 76);
    QImage white(row.size(), row.format());
    white.fill(Qt::white);
    EXPECT_NE(row, white);
}

/// The darkest and the brightest level in a part of the picture, in its pixels.
std::pair<int, int> levels(const QImage& image, const QRect& part) {
    std::pair<int, int> found{255, 0};
    const QRect inside = part & image.rect();
    for (int y = inside.top(); y <= inside.bottom(); ++y) {
        for (int x = inside.left(); x <= inside.right(); ++x) {
            const int level = qGray(image.pixel(x, y));
            found = {std::min(found.first, level), std::max(found.second, level)};
        }
    }
    return found;
}

TEST(PaletteImageRendererTest, TheTitleIsNearlyBlackAndTheNamesOfScalesAreGrey) {
    const QImage image = png(makePalette("HHHH", {makeScale("HHHH", {"#fff"})}));
    const int rowTop = 40 + titleHeight() + 28;
    EXPECT_NEAR(levels(image, QRect(80, 80, image.width(), 2 * titleHeight())).first, 26, 3);
    EXPECT_NEAR(levels(image, QRect(80, 2 * rowTop, 50, 2 * 76)).first, 102, 6);
}

TEST(PaletteImageRendererTest, TheNamesOfScalesEndSixteenPointsBeforeTheSwatches) {
    const QImage image =
        png(makePalette("A", {makeScale("IIIIIIIIII", {"#f00"}), makeScale("I", {"#f00"})}));
    const auto lastInk = [&image](int row) {
        const int top = 2 * (40 + titleHeight() + 28 + 82 * row);
        int last = 0;
        int firstRed = image.width();
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, top + 1) == 0xffff0000U)
                firstRed = std::min(firstRed, x);
        }
        for (int x = 0; x < firstRed; ++x) {
            if (levels(image, QRect(x, top, 1, 2 * 76)).first < 200)
                last = x;
        }
        return firstRed - last;
    };
    EXPECT_NEAR(lastInk(0), 2 * 16, 2 * 2) << "but for the blank beside the letter";
    EXPECT_EQ(lastInk(0), lastInk(1));
}

TEST(PaletteImageRendererTest, TheValueOnASwatchIsStrongerThanItsLabel) {
    const auto text = [](const char* value, const char* label) {
        const PaletteSwatch swatch(QString::fromLatin1(value),
                                   label ? std::optional(QString::fromLatin1(label))
                                         : std::nullopt);
        const QImage image = png(makePalette("A", {PaletteScale(QString(), {swatch})}));
        const int top = 2 * (40 + titleHeight() + 28);
        return std::pair(levels(image, QRect(2 * 60, top + 4, 2 * 100, 2 * 36)),
                         levels(image, QRect(2 * 60, top + 2 * 42, 2 * 100, 2 * 30)));
    };
    const auto [valueOnBlack, labelOnBlack] = text("#000000", "HHHH");
    EXPECT_NEAR(valueOnBlack.second, 242, 14);
    EXPECT_NEAR(labelOnBlack.second, 178, 14);
    const auto [valueOnWhite, labelOnWhite] = text("#ffffff", "HHHH");
    EXPECT_NEAR(valueOnWhite.first, 38, 14);
    EXPECT_NEAR(labelOnWhite.first, 115, 14);
}

TEST(PaletteImageRendererTest, TextOverASwatchContrastsWithIt) {
    const QImage image = png(makePalette("A", {makeScale("", {"#000000", "#ffffff"})}));
    const auto hasPixel = [&image](int left, auto test) {
        for (int y = 2 * (40 + titleHeight() + 28); y < image.height() - 80; ++y) {
            for (int x = 2 * left; x < 2 * (left + 112); ++x) {
                if (test(qGray(image.pixel(x, y))))
                    return true;
            }
        }
        return false;
    };
    EXPECT_TRUE(hasPixel(56, [](int level) { return level > 200; }));
    EXPECT_TRUE(hasPixel(56 + 112, [](int level) { return level < 80; }));
}

TEST(PaletteImageRendererTest, ARowWiderThanAPainterReachesIsDrawnToItsEnd) {
    QList<PaletteSwatch> swatches(200, PaletteSwatch(QStringLiteral("#f00")));
    swatches.append(PaletteSwatch(QStringLiteral("#00f")));
    const QImage image = png(makePalette("A", {PaletteScale(QString(), swatches)}));
    EXPECT_EQ(image.width(), 2 * (80 + 112 * 201));
    EXPECT_EQ(cellPixel(image, 56, 0, 150), 0xffff0000U);
    EXPECT_EQ(cellPixel(image, 56, 0, 200), 0xff0000ffU);
}

TEST(PaletteImageRendererTest, APictureBeyondTheLimitFailsAtOnce) {
    const QList<PaletteSwatch> swatches(2000, PaletteSwatch(QStringLiteral("#f00")));
    const QList<PaletteScale> scales(2000, PaletteScale(QString(), swatches));
    EXPECT_FALSE(PaletteImageRenderer::pngData(PalettePoster(makePalette("A", scales))));
}

Palette brand() {
    const PaletteSwatch sky(QStringLiteral(" #00AAFF\t"), QStringLiteral(" Sky\n"));
    return makePalette("Brand", {PaletteScale(QStringLiteral("Blues"), {sky}),
                                 makeScale("", {"#f00", "#0f0", "#00f"})});
}

TEST(PaletteImageRendererTest, APictureIsTheSameOnWhateverThreadItIsDrawn) {
    const QByteArray here = pngData(brand());
    for (int round = 0; round < 3; ++round) {
        auto elsewhere = std::async(std::launch::async, [poster = PalettePoster(brand())] {
            return PaletteImageRenderer::pngData(poster);
        });
        // With the same fonts, meanwhile.
        EXPECT_EQ(pngData(brand()), here);
        EXPECT_EQ(elsewhere.get(), here);
    }
}

class PaperTest : public testing::Test {
protected:
    /// What a tool of poppler's prints of the palette's document.
    std::string printed(const QString& tool, const Palette& palette, const QStringList& options) {
        const QString path = m_folder.filePath(QStringLiteral("palette.pdf"));
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(document(palette));
        file.close();
        QProcess process;
        QStringList arguments = QStringList(options) << path;
        if (tool == QStringLiteral("pdftotext"))
            arguments << QStringLiteral("-");
        process.start(tool, arguments);
        EXPECT_TRUE(process.waitForFinished()) << "poppler's tools are missing";
        return process.readAllStandardOutput().toStdString();
    }
    std::string text(const Palette& palette) {
        return printed(QStringLiteral("pdftotext"), palette, {QStringLiteral("-raw")});
    }
    std::string info(const Palette& palette) {
        return printed(QStringLiteral("pdfinfo"), palette, {QStringLiteral("-box")});
    }

    /// Made on another thread than the main one.
    static QByteArray document(const Palette& palette) {
        return std::async(std::launch::async,
                          [poster = PalettePoster(palette)] {
                              return PaletteImageRenderer::pdfData(poster);
                          })
            .get()
            .value_or(QByteArray());
    }

    QTemporaryDir m_folder;
};

TEST_F(PaperTest, TheDocumentIsOnePageOfTheCanvas) {
    const std::string info = this->info(makePalette("A", {makeScale("", {"#f00", "#0f0"})}));
    EXPECT_THAT(info, testing::ContainsRegex("Pages: +1\n"));
    const std::string height = std::to_string(80 + titleHeight() + 28 + 76);
    EXPECT_THAT(info, testing::ContainsRegex("MediaBox: +0.00 +0.00 +304.00 +" + height + ".00\n"));
}

TEST_F(PaperTest, TheTextIsTextInFontsThatTheDocumentHas) {
    const std::string text = this->text(brand());
    EXPECT_THAT(text, HasSubstr("Brand"));
    EXPECT_THAT(text, HasSubstr("Blues"));
    EXPECT_THAT(text, HasSubstr("#00aaff\nSky"));
    const std::string fonts = printed(QStringLiteral("pdffonts"), brand(), {});
    EXPECT_THAT(fonts, HasSubstr("yes"));
    EXPECT_THAT(printed(QStringLiteral("pdfimages"), brand(), {QStringLiteral("-list")}),
                Not(HasSubstr("image ")));
}

TEST_F(PaperTest, APaletteNamedWithBlanksIsTitledPalette) {
    EXPECT_THAT(text(makePalette(" \t ")), HasSubstr("Palette"));
}

TEST_F(PaperTest, AValueWiderThanTheSwatchEndsWithAnEllipsis) {
    const QString value = QStringLiteral("color(display-p3 0.123456 0.234567 0.345678)");
    const std::string text =
        this->text(makePalette("A", {PaletteScale(QString(), {PaletteSwatch(value)})}));
    EXPECT_THAT(text, HasSubstr("\u2026"));
    EXPECT_THAT(text, Not(HasSubstr("0.345678")));
}

TEST_F(PaperTest, ALabelOfBlanksCountsAsNone) {
    const PaletteSwatch blank(QStringLiteral("#f00"), QStringLiteral(" \n "));
    const PaletteSwatch none(QStringLiteral("#f00"));
    const auto image = [](const PaletteSwatch& swatch) {
        return png(makePalette("A", {PaletteScale(QString(), {swatch})}));
    };
    EXPECT_EQ(image(blank), image(none));
}

TEST_F(PaperTest, LineBreaksAndHostileNamesStayOnOneLine) {
    const QString hostile = QStringLiteral(u"a\nb\u2028c\u202E) Tj ET");
    const Palette palette(hostile, {PaletteScale(hostile, {PaletteSwatch(hostile, hostile)})},
                          ReferenceTime{});
    const std::string info = this->info(palette);
    EXPECT_THAT(info, testing::ContainsRegex("Pages: +1\n"));
    EXPECT_THAT(text(palette), HasSubstr("a b c"));
}

TEST_F(PaperTest, ALabelOfTenThousandLettersIsCut) {
    const PaletteSwatch swatch(QStringLiteral("#f00"), QString(10'000, u'x'));
    EXPECT_LT(text(makePalette("A", {PaletteScale(QString(), {swatch})})).size(), 200U);
}

} // namespace
} // namespace dropshade
