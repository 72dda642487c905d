// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT

// That an import leaves the main thread free, with real threads and time.
#include "imagepalette/NewPaletteFromImageModel.h"
#include "interchange/ASECoder.h"
#include "interchange/CLRCoder.h"
#include "interchange/PaletteImports.h"
#include "interchange/PaletteJSONCoder.h"
#include "interchange/WholeFile.h"
#include "palettes/UserPaletteStore.h"
#include "platform/linux/PoolBackgroundQueue.h"
#include "platform/linux/QtScheduler.h"
#include "support/FakePasteboard.h"
#include "support/LongestTurn.h"
#include "support/MemoryDefaults.h"

#include <QBuffer>
#include <QEventLoop>

#include <gtest/gtest.h>

namespace dropshade {
namespace {

constexpr double mostMilliseconds = 50.0;

Palette paletteOf(int swatchCount) {
    constexpr int swatchesOfScale = 100;
    QList<PaletteScale> scales;
    for (int first = 0; first < swatchCount; first += swatchesOfScale) {
        QList<PaletteSwatch> swatches;
        for (int place = first; place < first + swatchesOfScale; ++place)
            swatches.append(PaletteSwatch(
                QStringLiteral("#%1").arg((place * 7919) & 0xFFFFFF, 6, 16, QLatin1Char('0')),
                QStringLiteral("violet-%1").arg(place, 7, 10, QLatin1Char('0'))));
        scales.append(PaletteScale(QStringLiteral("Scale %1").arg(first), swatches));
    }
    return Palette(QStringLiteral("Large"), scales, ReferenceTime{});
}

/// A file of almost the most bytes that are taken.
QByteArray largestFile(QByteArray (*encode)(const Palette&)) {
    constexpr int sample = 10'000;
    // A large file has longer numbers in it.
    const double bytesOfSwatch = 1.2 * double(encode(paletteOf(sample)).size()) / sample;
    return encode(paletteOf(int(double(WholeFile::mostBytes) / bytesOfSwatch / 100) * 100));
}

struct Format {
    const char* extension;
    QByteArray (*encode)(const Palette&);
};

class PaletteImportTurn : public testing::TestWithParam<Format> {};

TEST_P(PaletteImportTurn, OfTheLargestFileIsShorterThan50Milliseconds) {
    const QByteArray file = largestFile(GetParam().encode);
    ASSERT_LE(file.size(), WholeFile::mostBytes);
    ASSERT_GT(file.size(), WholeFile::mostBytes * 4 / 5);
    QtScheduler scheduler;
    PoolBackgroundQueue queue;
    MemoryDefaults defaults;
    AppSettings settings(defaults, scheduler);
    PalettePresets presets(scheduler);
    defaults.setValue(QStringLiteral("userPalettes"), QByteArray("[]"));
    UserPaletteStore store(defaults, scheduler, settings, presets);
    QEventLoop loop;
    PaletteImports imports(scheduler, queue,
                           {[&](const Palette& palette) { store.addFreshPalette(palette); },
                            [](const QString& reason) { ADD_FAILURE() << reason.toStdString(); }});
    const LongestTurn longest;
    const auto begin = scheduler.after(std::chrono::milliseconds(0), [&] {
        imports.importData(file, QLatin1String(GetParam().extension), QStringLiteral("Large"));
        imports.whenImported([&loop] { loop.quit(); });
    });
    const auto bound = scheduler.after(std::chrono::minutes(2), [&loop] { loop.exit(1); });
    EXPECT_EQ(loop.exec(), 0);
    ASSERT_EQ(store.palettes().size(), 1);
    EXPECT_GT(store.palettes().first().scales().size(), 1000);
    EXPECT_LT(longest.milliseconds(), mostMilliseconds);
    RecordProperty("bytes", std::to_string(file.size()));
    RecordProperty("milliseconds", std::to_string(longest.milliseconds()));
}

INSTANTIATE_TEST_SUITE_P(Formats, PaletteImportTurn,
                         testing::Values(Format{"ase", &ASECoder::encode},
                                         Format{"clr", &CLRCoder::encode},
                                         Format{"json", &PaletteJSONCoder::encode}),
                         [](const auto& format) { return std::string(format.param.extension); });

QByteArray largeImage(const char* format) {
    QImage image(5000, 4000, QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x)
            line[x] = qRgb(x / 20, y / 16, (x + y) / 36);
    }
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format, 90);
    return buffer.data();
}

class ImageLoadTurn : public testing::TestWithParam<const char*> {};

TEST_P(ImageLoadTurn, OfALargeImageIsShorterThan50Milliseconds) {
    QtScheduler scheduler;
    PoolBackgroundQueue queue;
    FakePasteboard pasteboard;
    NewPaletteFromImageModel model({scheduler, queue, pasteboard});
    QMimeData content;
    content.setData(QStringLiteral("image/x-anything"), largeImage(GetParam()));
    QEventLoop loop;
    QObject::connect(&model, &NewPaletteFromImageModel::imageDidChange, &loop, &QEventLoop::quit,
                     Qt::QueuedConnection);
    const LongestTurn longest;
    const auto begin = scheduler.after(std::chrono::milliseconds(0), [&] { model.drop(content); });
    const auto bound = scheduler.after(std::chrono::minutes(2), [&loop] { loop.exit(1); });
    EXPECT_EQ(loop.exec(), 0);
    ASSERT_TRUE(model.image());
    EXPECT_EQ(model.image()->originalSize, QSize(5000, 4000));
    EXPECT_LT(longest.milliseconds(), mostMilliseconds);
    RecordProperty("milliseconds", std::to_string(longest.milliseconds()));
}

INSTANTIATE_TEST_SUITE_P(Formats, ImageLoadTurn, testing::Values("jpeg", "png"),
                         [](const auto& format) { return std::string(format.param); });

} // namespace
} // namespace dropshade
