// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "QuantizePeers.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryFile>

#include <libimagequant.h>
#include <wand/MagickWand.h>

#include <ctime>

namespace dropshade::bench {

namespace {

const char* bytesOf(const Sample& sample) {
    return reinterpret_cast<const char*>(sample.pixels.data());
}

std::vector<Pixel> paletteOf(MagickWand* wand) {
    std::size_t count = 0;
    PixelWand** const colors = MagickGetImageHistogram(wand, &count);
    const auto byteOf = [](double part) { return static_cast<std::uint8_t>(part * 255.0 + 0.5); };
    std::vector<Pixel> palette;
    for (std::size_t at = 0; at < count; ++at)
        palette.push_back({byteOf(PixelGetRed(colors[at])), byteOf(PixelGetGreen(colors[at])),
                           byteOf(PixelGetBlue(colors[at]))});
    DestroyPixelWands(colors, count);
    return palette;
}

Outcome outcomeOf(const QByteArray& line) {
    const QList<QByteArray> fields = line.trimmed().split('\t');
    Outcome outcome{fields.value(0).toStdString(), {}, {}};
    for (const QByteArray& time : fields.value(1).split(' '))
        outcome.times.push_back(time.toDouble());
    for (const QByteArray& triple : fields.value(2).split(' ')) {
        const QList<QByteArray> channels = triple.split(',');
        const auto channel = [&channels](int at) {
            return static_cast<std::uint8_t>(channels.value(at).toInt());
        };
        outcome.palette.push_back({channel(0), channel(1), channel(2)});
    }
    return outcome;
}

} // namespace

Outcome timed(const std::string& quantizer, int runs,
              const std::function<std::vector<Pixel>()>& run) {
    Outcome outcome{quantizer, {}, {}};
    for (int at = 0; at < runs; ++at) {
        const std::clock_t start = std::clock();
        outcome.palette = run();
        outcome.times.push_back(static_cast<double>(std::clock() - start) * 1000.0 /
                                CLOCKS_PER_SEC);
    }
    return outcome;
}

Outcome byImagequant(const Sample& sample, int k, int runs) {
    std::vector<liq_color> rgba;
    for (const Pixel pixel : sample.pixels)
        rgba.push_back({pixel.red, pixel.green, pixel.blue, 255});
    return timed("libimagequant", runs, [&] {
        liq_attr* const attributes = liq_attr_create();
        liq_set_max_colors(attributes, k);
        liq_image* const image =
            liq_image_create_rgba(attributes, rgba.data(), sample.width, sample.height, 0.0);
        liq_result* result = nullptr;
        std::vector<Pixel> palette;
        if (liq_image_quantize(image, attributes, &result) == LIQ_OK) {
            const liq_palette* const colors = liq_get_palette(result);
            for (unsigned at = 0; at < colors->count; ++at)
                palette.push_back(
                    {colors->entries[at].r, colors->entries[at].g, colors->entries[at].b});
            liq_result_destroy(result);
        }
        liq_image_destroy(image);
        liq_attr_destroy(attributes);
        return palette;
    });
}

Outcome byMagick(const Sample& sample, int k, int runs) {
    MagickWandGenesis();
    Outcome outcome{"ImageMagick octree", {}, {}};
    for (int at = 0; at < runs; ++at) {
        MagickWand* const wand = NewMagickWand();
        MagickConstituteImage(wand, static_cast<std::size_t>(sample.width),
                              static_cast<std::size_t>(sample.height), "RGB", CharPixel,
                              sample.pixels.data());
        const Outcome once = timed(outcome.quantizer, 1, [&]() -> std::vector<Pixel> {
            MagickQuantizeImage(wand, static_cast<std::size_t>(k), sRGBColorspace, 0, MagickFalse,
                                MagickFalse);
            return {};
        });
        outcome.times.push_back(once.times.front());
        outcome.palette = paletteOf(wand);
        DestroyMagickWand(wand);
    }
    MagickWandTerminus();
    return outcome;
}

std::vector<Outcome> byPillow(const Sample& sample, int k, int runs) {
    QTemporaryFile file;
    if (!file.open())
        return {};
    file.write(bytesOf(sample), static_cast<qint64>(sample.pixels.size() * sizeof(Pixel)));
    file.close();
    QProcess python;
    python.start(QStringLiteral("/usr/bin/python3"),
                 {QStringLiteral(DROPSHADE_PILLOW_SCRIPT), file.fileName(),
                  QString::number(sample.width), QString::number(sample.height), QString::number(k),
                  QString::number(runs)});
    if (!python.waitForFinished(120'000) || python.exitCode() != 0)
        return {};
    std::vector<Outcome> outcomes;
    for (const QByteArray& line : python.readAllStandardOutput().trimmed().split('\n'))
        outcomes.push_back(outcomeOf(line));
    return outcomes;
}

} // namespace dropshade::bench
