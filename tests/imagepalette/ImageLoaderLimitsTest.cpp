// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "imagepalette/ImageLoader.h"

#include "imagepalette/SampleFiles.h"

#include <QDir>
#include <QFile>
#include <QLoggingCategory>
#include <QtEndian>

#include <gtest/gtest.h>

#include <sys/resource.h>

#include <ctime>
#include <random>

namespace dropshade {
namespace {

using namespace SampleFiles;

// By the processor's clock, so that a busy machine does not count.
constexpr double longestSeconds = 0.2;
constexpr long mostKilobytes = 256 * 1024;

bool loads(const QByteArray& data) {
    const std::clock_t start = std::clock();
    const auto loaded = ImageLoader::loadData(data);
    EXPECT_TRUE(!loaded || pixelBufferOf(*loaded));
#ifdef NDEBUG
    EXPECT_LE(static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC, longestSeconds);
#else
    static_cast<void>(start);
#endif
    return loaded.has_value();
}

class ImageLoaderLimits : public testing::Test {
protected:
    void SetUp() override { QLoggingCategory::setFilterRules(QStringLiteral("*=false")); }

    void TearDown() override {
#ifdef NDEBUG
        rusage usage{};
        getrusage(RUSAGE_SELF, &usage);
        EXPECT_LE(usage.ru_maxrss, mostKilobytes);
#endif
    }
};

QByteArray big32(quint32 value) {
    QByteArray result(4, Qt::Uninitialized);
    qToBigEndian(value, result.data());
    return result;
}

quint32 pngChecksum(const QByteArray& data) {
    quint32 sum = 0xFFFFFFFF;
    for (const char byte : data) {
        sum ^= static_cast<quint8>(byte);
        for (int bit = 0; bit < 8; ++bit)
            sum = sum >> 1 ^ (sum & 1 ? 0xEDB88320 : 0);
    }
    return ~sum;
}

QByteArray pngChunk(const QByteArray& type, const QByteArray& body) {
    return big32(static_cast<quint32>(body.size())) + type + body + big32(pngChecksum(type + body));
}

/// A PNG of one-bit pixels with the given data.
QByteArray png(quint32 width, quint32 height, const QByteArray& raw) {
    return QByteArray("\x89PNG\r\n\x1A\n", 8) +
           pngChunk("IHDR", big32(width) + big32(height) + QByteArray("\1\0\0\0\0", 5)) +
           pngChunk("IDAT", qCompress(raw, 9).mid(4)) + pngChunk("IEND", {});
}

TEST_F(ImageLoaderLimits, TheSmallFilesOfThisTestAreGood) {
    EXPECT_TRUE(loads(png(8, 2, QByteArray(4, '\0'))));
    EXPECT_TRUE(loads(gif(20, 20, 0, 0xFFFFFF)));
    EXPECT_TRUE(loads(tiff(20, 20, 0)));
}

TEST_F(ImageLoaderLimits, AFileCutShortGivesNoImage) {
    const QImage image = picture(40, 30);
    const QList<QByteArray> files = {encoded(image, "png"),      encoded(image, "jpeg", 80),
                                     encoded(image, "bmp"),      encoded(image, "tiff"),
                                     encoded(image, "webp", 80), gif(40, 30, 0, 0xFFFFFF),
                                     runLengthBmp(40, 20),       tiff(40, 30, 0),
                                     cmykJpeg(1, 2, 3, 4),       jpegWithOrientation(image, 6)};
    for (qsizetype index = 0; index < files.size(); ++index) {
        const QByteArray& file = files[index];
        ASSERT_TRUE(loads(file)) << "file " << index;
        const qsizetype step = std::max<qsizetype>(1, file.size() / 300);
        // What follows a GIF's first frame is not needed.
        const qsizetype longest = file.startsWith("GIF") ? file.size() - 2 : file.size() - 1;
        for (qsizetype length = longest; length >= 0; length -= step)
            ASSERT_FALSE(loads(file.left(length)))
                << "file " << index << " of " << file.size() << " cut to " << length;
    }
}

TEST_F(ImageLoaderLimits, AHeicCutShortGivesNoImage) {
    const QByteArray file = heic(picture(64, 64));
    ASSERT_FALSE(file.isEmpty()) << "no HEVC encoder";
    ASSERT_TRUE(loads(file));
    for (qsizetype length = file.size() - 1; length >= 0; length -= 7)
        ASSERT_FALSE(loads(file.left(length))) << length << " of " << file.size();
}

TEST_F(ImageLoaderLimits, AHeicOfHugeSidesGivesNoImage) {
    const QByteArray file = heic(picture(64, 64));
    ASSERT_FALSE(file.isEmpty()) << "no HEVC encoder";
    // Its sides stand behind the four zeros that follow the name of the box.
    const qsizetype sides = file.indexOf("ispe") + 8;
    for (const quint32 side : {63u, 2000u, 6000u, 60'000u, 0x7FFFFFFFu, 0xFFFFFFFFu}) {
        EXPECT_FALSE(loads(patched(file, sides, big32(side) + big32(side)))) << side;
        EXPECT_FALSE(loads(patched(file, sides, big32(side)))) << side;
    }
}

TEST_F(ImageLoaderLimits, AHeicThatRepeatsItsHeadersInItsDataGivesNoImage) {
    const QByteArray file = heic(picture(64, 64));
    ASSERT_FALSE(file.isEmpty()) << "no HEVC encoder";
    // The first unit of the coded data, turned from a slice into a sequence header.
    const qsizetype data = file.indexOf("mdat") + 4;
    EXPECT_FALSE(loads(patched(file, data + 4, QByteArray(1, 33 << 1))));
}

TEST_F(ImageLoaderLimits, FilesThatOnceBrokeTheLoaderStayCheap) {
    const QDir corpus(QStringLiteral(DROPSHADE_CORPUS));
    const QStringList names = corpus.entryList(QDir::Files);
    EXPECT_FALSE(names.isEmpty());
    for (const QString& name : names) {
        QFile file(corpus.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        SCOPED_TRACE(name.toStdString());
        static_cast<void>(loads(file.readAll()));
    }
}

TEST_F(ImageLoaderLimits, HugeSidesGiveNoImage) {
    const quint32 most = 0x7FFFFFFF;
    for (const quint32 side : {20'000u, 100'000u, most}) {
        EXPECT_FALSE(loads(png(side, side, QByteArray(100, '\0')))) << side;
        EXPECT_FALSE(loads(png(side, 1, QByteArray(100, '\0')))) << side;
        EXPECT_FALSE(loads(png(1, side, QByteArray(100, '\0')))) << side;
    }
    const QByteArray jpeg = encoded(picture(40, 30), "jpeg", 80);
    const qsizetype frame = jpeg.indexOf("\xFF\xC0") + 5;
    EXPECT_FALSE(loads(patched(jpeg, frame, "\xFF\xFF\xFF\xFF")));
    EXPECT_FALSE(loads(patched(jpeg, frame, QByteArray("\x10\x00\x10\x00", 4))));
    const QByteArray bmp = encoded(picture(40, 30), "bmp");
    EXPECT_FALSE(loads(patched(bmp, 18, QByteArray("\xFF\xFF\xFF\x7F\xFF\xFF\xFF\x7F"))));
    EXPECT_FALSE(loads(patched(runLengthBmp(40, 20), 18, "\xFF\xFF\xFF\x7F\xFF\xFF\xFF\x7F")));
    EXPECT_FALSE(loads(patched(gif(40, 30, 0, 1), 6, "\xFF\xFF\xFF\xFF")));
    const QByteArray tiffFile = tiff(40, 30, 0);
    const QByteArray hugeSide("\xFF\xFF", 2);
    EXPECT_FALSE(loads(patched(patched(tiffFile, 18, hugeSide), 30, hugeSide)));
}

TEST_F(ImageLoaderLimits, ABombGivesNoImage) {
    // 144 million pixels in 18 kB; then 18 MB of pixels for a claim of four.
    EXPECT_FALSE(loads(png(12'000, 12'000, QByteArray(12'000 * 1501, '\0'))));
    static_cast<void>(loads(png(2, 2, QByteArray(12'000 * 1501, '\0'))));
    // Text that unpacks to 64 MB.
    QByteArray text = png(8, 2, QByteArray(4, '\0'));
    text.insert(33, pngChunk("zTXt", QByteArray("Comment\0\0", 9) +
                                         qCompress(QByteArray(64 * 1024 * 1024, 'a'), 9).mid(4)));
    static_cast<void>(loads(text));
}

TEST_F(ImageLoaderLimits, AJpegOfTooManyScansGivesNoImage) {
    const QByteArray jpeg = encoded(picture(40, 30), "jpeg", 80);
    const qsizetype scan = jpeg.indexOf("\xFF\xDA");
    const QByteArray scans = jpeg.mid(scan, jpeg.size() - scan - 2).repeated(1000);
    EXPECT_FALSE(loads(jpeg.left(scan) + scans + "\xFF\xD9"));
}

TEST_F(ImageLoaderLimits, AGifOfTooFewPixelsGivesNoImage) {
    const QByteArray file = gif(40, 30, 0, 0xFFFFFF);
    const qsizetype frame = file.indexOf(',') + 5;
    EXPECT_FALSE(loads(patched(patched(file, 6, "\x90\x01"), frame, "\x90\x01")));
}

TEST_F(ImageLoaderLimits, ATiffOfHugeTilesGivesNoImage) {
    // Strip offsets, rows per strip and byte counts turned into a tile's width, height and so on.
    QByteArray file = tiff(40, 30, 0);
    for (qsizetype entry = 10; entry < 10 + 10 * 12; entry += 12) {
        const auto tag = qFromLittleEndian<quint16>(file.constData() + entry);
        if (tag == 278)
            file = patched(file, entry, QByteArray("\x42\x01\x04\0\1\0\0\0\0\0\x10\0", 12));
        if (tag == 284)
            file = patched(file, entry, QByteArray("\x43\x01\x04\0\1\0\0\0\0\0\x10\0", 12));
    }
    EXPECT_FALSE(loads(file));
}

TEST_F(ImageLoaderLimits, ATiffOfMillionsOfStripsTakesNoMoreThanItsBytes) {
    constexpr quint32 strips = 16 * 1024 * 1024;
    QByteArray file = tiff(40, 30, 0);
    QByteArray range(8, Qt::Uninitialized);
    qToLittleEndian(strips, range.data());
    qToLittleEndian(quint32(file.size()), range.data() + 4);
    for (qsizetype entry = 10; entry < 10 + 10 * 12; entry += 12) {
        const auto tag = qFromLittleEndian<quint16>(file.constData() + entry);
        if (tag == 273 || tag == 279)
            file = patched(file, entry + 2, QByteArray("\1\0", 2) + range);
    }
    static_cast<void>(loads(file + QByteArray(strips, '\1')));
}

TEST_F(ImageLoaderLimits, DamagedFilesNeverCrashAndStayCheap) {
    constexpr unsigned seed = 20'240'601;
    SCOPED_TRACE(testing::Message() << "seed " << seed);
    std::mt19937 generator(seed);
    const QImage image = picture(40, 30);
    const QList<QByteArray> files = {encoded(image, "png"),  encoded(image, "jpeg", 80),
                                     encoded(image, "bmp"),  encoded(image, "tiff"),
                                     encoded(image, "webp"), gif(40, 30, 0, 0xFFFFFF),
                                     runLengthBmp(40, 20),   tiff(40, 30, 0),
                                     cmykJpeg(1, 2, 3, 4),   heic(image)};
    for (const QByteArray& file : files) {
        for (int round = 0; round < 150 && !file.isEmpty(); ++round) {
            QByteArray damaged = file;
            // Headers are damaged more often than pixels.
            const qsizetype reach =
                round % 2 == 0 ? std::min<qsizetype>(200, file.size()) : file.size();
            for (int change = 0; change <= round % 5; ++change)
                damaged[static_cast<qsizetype>(generator() % static_cast<quint64>(reach))] =
                    static_cast<char>(generator());
            static_cast<void>(loads(damaged));
        }
    }
}

} // namespace
} // namespace dropshade
