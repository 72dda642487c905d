// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "imagepalette/ImageLoader.h"

#include "imagepalette/SampleFiles.h"

#include <QColorSpace>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace dropshade {
namespace {

using namespace SampleFiles;

QByteArray withAlpha(const char* format) {
    QImage image(4, 4, QImage::Format_ARGB32);
    image.fill(qRgba(255, 0, 0, 128));
    return encoded(image, format);
}

void expectNear(QRgb actual, QRgb expected, int tolerance) {
    EXPECT_NEAR(qRed(actual), qRed(expected), tolerance);
    EXPECT_NEAR(qGreen(actual), qGreen(expected), tolerance);
    EXPECT_NEAR(qBlue(actual), qBlue(expected), tolerance);
}

void expectLooksLike(const QByteArray& file, const QImage& expected, int tolerance) {
    const auto loaded = ImageLoader::loadData(file);
    ASSERT_TRUE(loaded);
    ASSERT_EQ(loaded->image.size(), expected.size());
    EXPECT_EQ(loaded->originalSize, expected.size());
    for (int y = 0; y < expected.height(); y += 5) {
        for (int x = 0; x < expected.width(); x += 5)
            expectNear(loaded->image.pixel(x, y), expected.pixel(x, y), tolerance);
    }
}

TEST(ImageLoader, ReadsLosslessFormatsExactly) {
    const QImage image = picture(61, 37);
    expectLooksLike(encoded(image, "png"), image, 0);
    expectLooksLike(encoded(image, "bmp"), image, 0);
    expectLooksLike(encoded(image, "tiff"), image, 0);
}

TEST(ImageLoader, ReadsLossyFormatsClosely) {
    const QImage image = picture(61, 37);
    expectLooksLike(encoded(image, "jpeg", 95), image, 16);
    expectLooksLike(encoded(image, "webp", 95), image, 16);
}

TEST(ImageLoader, ReadsGif) {
    const auto loaded = ImageLoader::loadData(gif(6, 3, qRgb(10, 20, 30), qRgb(200, 100, 0)));
    ASSERT_TRUE(loaded);
    EXPECT_EQ(loaded->image.size(), QSize(6, 3));
    EXPECT_EQ(loaded->image.pixel(0, 0), qRgb(10, 20, 30));
    EXPECT_EQ(loaded->image.pixel(1, 2), qRgb(200, 100, 0));
}

TEST(ImageLoader, GivesImagesWithoutAColorTable) {
    QImage image(10, 10, QImage::Format_Indexed8);
    image.setColorTable({qRgb(1, 2, 3)});
    image.fill(0);
    const auto loaded = ImageLoader::loadData(encoded(image, "png"));
    ASSERT_TRUE(loaded);
    EXPECT_EQ(loaded->image.format(), QImage::Format_RGB32);
    EXPECT_EQ(loaded->image.pixel(5, 5), qRgb(1, 2, 3));
}

TEST(ImageLoader, ReadsRunLengthBmp) {
    const auto loaded = ImageLoader::loadData(runLengthBmp(9, 5));
    ASSERT_TRUE(loaded);
    EXPECT_EQ(loaded->image.pixel(8, 3), qRgb(30, 30, 30));
}

TEST(ImageLoader, ReadsTiffWithItsDirectoryFirst) {
    const auto loaded = ImageLoader::loadData(tiff(7, 5, qRgb(1, 2, 3)));
    ASSERT_TRUE(loaded);
    EXPECT_EQ(loaded->image.pixel(6, 4), qRgb(1, 2, 3));
}

TEST(ImageLoader, ReadsCmykJpeg) {
    // Stored upside down: no cyan, full magenta and yellow, no black.
    const auto loaded = ImageLoader::loadData(cmykJpeg(255, 0, 0, 255));
    ASSERT_TRUE(loaded);
    expectNear(loaded->image.pixel(4, 4), qRgb(255, 0, 0), 3);
    const auto dark = ImageLoader::loadData(cmykJpeg(255, 255, 255, 100));
    ASSERT_TRUE(dark);
    expectNear(dark->image.pixel(4, 4), qRgb(100, 100, 100), 3);
}

TEST(ImageLoader, ReadsHeic) {
    for (const QSize size : {QSize(64, 48), QSize(41, 31)}) {
        const QImage image = picture(size.width(), size.height());
        const QByteArray file = heic(image);
        ASSERT_FALSE(file.isEmpty()) << "no HEVC encoder";
        expectLooksLike(file, image, 16);
    }
}

TEST(ImageLoader, KeepsTransparency) {
    for (const char* const format : {"png", "tiff", "webp"}) {
        const auto loaded = ImageLoader::loadData(withAlpha(format));
        ASSERT_TRUE(loaded) << format;
        EXPECT_EQ(qAlpha(loaded->image.pixel(0, 0)), 128) << format;
    }
}

TEST(ImageLoader, KeepsTransparencyOfHeic) {
    for (const QSize size : {QSize(64, 64), QSize(41, 31), QSize(2003, 41)}) {
        QImage image(size, QImage::Format_ARGB32);
        image.fill(qRgba(255, 0, 0, 0));
        const QByteArray file = heic(image);
        ASSERT_FALSE(file.isEmpty()) << "no HEVC encoder";
        const auto loaded = ImageLoader::loadData(file);
        ASSERT_TRUE(loaded);
        EXPECT_EQ(loaded->originalSize, size);
        EXPECT_LT(qAlpha(loaded->image.pixel(30, 30)), 16);
        EXPECT_TRUE(pixelBufferOf(*loaded)->pixels().empty());
    }
}

TEST(ImageLoader, ObeysEveryExifOrientation) {
    // The top left corner, red, and the top right, blue, where each orientation puts them.
    QImage image(64, 32, QImage::Format_RGB32);
    image.fill(Qt::white);
    for (int y = 0; y < 16; ++y) {
        for (int x = 0; x < 16; ++x) {
            image.setPixel(x, y, qRgb(255, 0, 0));
            image.setPixel(63 - x, y, qRgb(0, 0, 255));
        }
    }
    struct Corners {
        QPoint red, blue;
    };
    const QPoint topLeft(8, 8), wideTopRight(56, 8), wideBottomLeft(8, 24), wideBottomRight(56, 24);
    const QPoint tallTopRight(24, 8), tallBottomLeft(8, 56), tallBottomRight(24, 56);
    const Corners corners[] = {
        {topLeft, wideTopRight},           {wideTopRight, topLeft},
        {wideBottomRight, wideBottomLeft}, {wideBottomLeft, wideBottomRight},
        {topLeft, tallBottomLeft},         {tallTopRight, tallBottomRight},
        {tallBottomRight, tallTopRight},   {tallBottomLeft, topLeft},
    };
    for (int orientation = 1; orientation <= 8; ++orientation) {
        SCOPED_TRACE(orientation);
        const auto loaded = ImageLoader::loadData(jpegWithOrientation(image, orientation));
        ASSERT_TRUE(loaded);
        EXPECT_EQ(loaded->image.size(), orientation < 5 ? QSize(64, 32) : QSize(32, 64));
        EXPECT_EQ(loaded->originalSize, loaded->image.size());
        expectNear(loaded->image.pixel(corners[orientation - 1].red), qRgb(255, 0, 0), 12);
        expectNear(loaded->image.pixel(corners[orientation - 1].blue), qRgb(0, 0, 255), 12);
    }
}

TEST(ImageLoader, ObeysTheOrientationOfHeic) {
    QImage image(64, 32, QImage::Format_RGB32);
    image.fill(Qt::white);
    for (int y = 0; y < 16; ++y) {
        for (int x = 0; x < 16; ++x)
            image.setPixel(x, y, qRgb(255, 0, 0));
    }
    const QByteArray file = heic(image, {90, {}, 0});
    ASSERT_FALSE(file.isEmpty()) << "no HEVC encoder";
    const auto loaded = ImageLoader::loadData(file);
    ASSERT_TRUE(loaded);
    EXPECT_EQ(loaded->image.size(), QSize(32, 64));
    expectNear(loaded->image.pixel(24, 8), qRgb(255, 0, 0), 16);
}

/// Display P3's (230, 100, 50), and what it is in sRGB.
QImage inDisplayP3() {
    QImage image(64, 64, QImage::Format_RGB32);
    image.fill(qRgb(230, 100, 50));
    image.setColorSpace(QColorSpace::DisplayP3);
    return image;
}

QRgb expectedInSRGB() {
    return inDisplayP3().convertedToColorSpace(QColorSpace::SRgb).pixel(0, 0);
}

TEST(ImageLoader, ConvertsAnEmbeddedProfileToSRGB) {
    ASSERT_NE(expectedInSRGB(), inDisplayP3().pixel(0, 0));
    for (const char* const format : {"png", "jpeg", "tiff", "webp"}) {
        SCOPED_TRACE(format);
        const auto loaded = ImageLoader::loadData(encoded(inDisplayP3(), format, 100));
        ASSERT_TRUE(loaded);
        expectNear(loaded->image.pixel(32, 32), expectedInSRGB(), 4);
    }
}

TEST(ImageLoader, ConvertsTheProfileOfALargeImageToo) {
    for (const char* const format : {"png", "jpeg", "tiff", "webp"}) {
        SCOPED_TRACE(format);
        const auto loaded =
            ImageLoader::loadData(encoded(inDisplayP3().scaled(1700, 60), format, 100));
        ASSERT_TRUE(loaded);
        EXPECT_EQ(loaded->image.width(), ImageLoader::longestSide);
        expectNear(loaded->image.pixel(32, 32), expectedInSRGB(), 4);
    }
}

TEST(ImageLoader, ConvertsTheProfilesOfHeic) {
    const QByteArray icc = QColorSpace(QColorSpace::DisplayP3).iccProfile();
    for (const QByteArray& file :
         {heic(inDisplayP3(), {0, icc, 0}), heic(inDisplayP3(), {0, {}, 12})}) {
        ASSERT_FALSE(file.isEmpty()) << "no HEVC encoder";
        const auto loaded = ImageLoader::loadData(file);
        ASSERT_TRUE(loaded);
        expectNear(loaded->image.pixel(32, 32), expectedInSRGB(), 5);
    }
}

TEST(ImageLoader, ReducesLargeImagesAndRemembersTheirSize) {
    for (const char* const format : {"png", "jpeg", "bmp", "tiff", "webp"}) {
        SCOPED_TRACE(format);
        const auto loaded = ImageLoader::loadData(encoded(picture(3200, 1000), format, 95));
        ASSERT_TRUE(loaded);
        EXPECT_EQ(loaded->image.size(), QSize(1600, 500));
        EXPECT_EQ(loaded->originalSize, QSize(3200, 1000));
        expectNear(loaded->image.pixel(800, 250), qRgb(127, 127, 127), 8);
    }
}

TEST(ImageLoader, ReducesALargeImageThatLiesOnItsSide) {
    const auto loaded = ImageLoader::loadData(jpegWithOrientation(picture(3200, 1000), 6));
    ASSERT_TRUE(loaded);
    EXPECT_EQ(loaded->image.size(), QSize(500, 1600));
    EXPECT_EQ(loaded->originalSize, QSize(1000, 3200));
}

TEST(ImageLoader, TellsTheFormatByContentAndNotByName) {
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("picture.gif"));
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(encoded(picture(5, 4), "png"));
    file.close();
    const auto loaded = ImageLoader::loadFile(path);
    ASSERT_TRUE(loaded);
    EXPECT_EQ(loaded->image.size(), QSize(5, 4));
}

TEST(ImageLoader, GivesNothingForWhatIsNoFile) {
    EXPECT_FALSE(ImageLoader::loadFile(QStringLiteral("/nonexistent")));
    EXPECT_FALSE(ImageLoader::loadFile(QStringLiteral("/")));
    EXPECT_FALSE(ImageLoader::loadFile(QStringLiteral("/dev/zero")));
    EXPECT_FALSE(ImageLoader::loadFile(QString()));
}

TEST(ImageLoader, GivesNothingForOtherFormats) {
    EXPECT_FALSE(ImageLoader::loadData("<svg xmlns='http://www.w3.org/2000/svg'/>"));
    EXPECT_FALSE(ImageLoader::loadData("P3 1 1 255 1 2 3"));
    EXPECT_FALSE(ImageLoader::loadData({}));
}

std::vector<Pixel> pixelsOf(const QImage& image) {
    const auto buffer = pixelBufferOf(image);
    return buffer ? std::vector<Pixel>(buffer->pixels().begin(), buffer->pixels().end())
                  : std::vector<Pixel>{};
}

TEST(PixelBufferOf, GivesNothingForNoImage) {
    EXPECT_FALSE(pixelBufferOf(QImage()));
}

TEST(PixelBufferOf, TakesASmallImagePixelByPixel) {
    QImage image(2, 2, QImage::Format_RGB32);
    image.setPixel(0, 0, qRgb(1, 2, 3));
    image.setPixel(1, 0, qRgb(4, 5, 6));
    image.setPixel(0, 1, qRgb(7, 8, 9));
    image.setPixel(1, 1, qRgb(10, 11, 12));
    EXPECT_EQ(pixelsOf(image), (std::vector<Pixel>{{1, 2, 3}, {4, 5, 6}, {7, 8, 9}, {10, 11, 12}}));
}

TEST(PixelBufferOf, ScalesFromTwoHundredAndOnePixelsOn) {
    const auto count = [](int width, int height) {
        return pixelsOf(picture(width, height)).size();
    };
    EXPECT_EQ(count(200, 200), 40'000u);
    EXPECT_EQ(count(200, 1), 200u);
    EXPECT_EQ(count(201, 1), 200u);
    EXPECT_EQ(count(4000, 10), 200u);
    EXPECT_EQ(count(10, 4000), 200u);
    EXPECT_EQ(count(400, 203), 200u * 102u);
    EXPECT_EQ(count(3000, 2000), 200u * 133u);
    EXPECT_EQ(count(3, 2), 6u);
    EXPECT_EQ(count(30'000, 1), 200u);
}

TEST(PixelBufferOf, TakesTheSidesFromTheOriginal) {
    // 30 pixels of 4000 make 1.5 of 200, but 12 of 1600 no more than 1.49.
    const auto loaded = ImageLoader::loadData(encoded(picture(4000, 30), "png"));
    ASSERT_TRUE(loaded);
    EXPECT_EQ(pixelBufferOf(*loaded)->pixels().size(), 400u);
}

TEST(PixelBufferOf, LaysTransparencyOverWhite) {
    QImage image(3, 1, QImage::Format_ARGB32);
    image.setPixel(0, 0, qRgba(255, 0, 0, 128));
    image.setPixel(1, 0, qRgba(9, 9, 9, 15));
    image.setPixel(2, 0, qRgba(0, 0, 0, 16));
    EXPECT_EQ(pixelsOf(image), (std::vector<Pixel>{{255, 127, 127}, {239, 239, 239}}));
}

TEST(PixelBufferOf, GivesAnEmptyListForATransparentImage) {
    QImage image(20, 20, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    const auto buffer = pixelBufferOf(image);
    ASSERT_TRUE(buffer);
    EXPECT_TRUE(buffer->pixels().empty());
}

TEST(PixelBufferOf, ATransparentEdgeDoesNotDarkenWhatIsScaled) {
    // Transparent black beside opaque red, two pixels to one.
    QImage image(400, 2, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    for (int x = 1; x < 400; x += 2) {
        image.setPixel(x, 0, qRgba(255, 0, 0, 255));
        image.setPixel(x, 1, qRgba(255, 0, 0, 255));
    }
    const std::vector<Pixel> pixels = pixelsOf(image);
    ASSERT_EQ(pixels.size(), 200u);
    for (const Pixel pixel : pixels)
        EXPECT_GE(pixel.red, 253);
}

TEST(PixelBufferOf, BringsAnotherColorSpaceToSRGB) {
    const std::vector<Pixel> pixels = pixelsOf(inDisplayP3());
    const QRgb expected = expectedInSRGB();
    ASSERT_EQ(pixels.size(), 64u * 64u);
    expectNear(qRgb(pixels[0].red, pixels[0].green, pixels[0].blue), expected, 1);
}

TEST(PixelBufferOf, TakesImagesWithPaddedRows) {
    std::vector<uchar> bytes(1024 * 100, 255);
    const QImage image(bytes.data(), 5, 100, 1024, QImage::Format_RGBX8888);
    EXPECT_EQ(pixelsOf(image), std::vector<Pixel>(500, Pixel{255, 255, 255}));
}

TEST(PixelBufferOf, TakesIndicesBeyondTheColorTable) {
    QImage image(300, 9, QImage::Format_Indexed8);
    image.setColorTable({qRgb(1, 2, 3)});
    std::fill_n(image.bits(), image.sizeInBytes(), uchar{255});
    EXPECT_EQ(pixelsOf(image).size(), 200u * 6u);
}

TEST(PixelBufferOf, TakesEveryImageFormat) {
    for (int format = 1; format < QImage::NImageFormats; ++format) {
        SCOPED_TRACE(format);
        const QImage image = picture(7, 5).convertToFormat(static_cast<QImage::Format>(format));
        EXPECT_EQ(pixelBufferOf(image).has_value(), !image.isNull());
    }
}

} // namespace
} // namespace dropshade
