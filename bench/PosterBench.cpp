// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT

// Palettes as PNG and PDF. The floor of a PNG is to compress its pixels, drawn beforehand.

#include "interchange/PaletteImageRenderer.h"

#include <QBuffer>
#include <QGuiApplication>
#include <QImage>
#include <QImageReader>
#include <QImageWriter>

#include <benchmark/benchmark.h>

namespace dropshade {
namespace {

/// The fonts are the desktop's, here of no desktop.
void haveFonts() {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static int argumentCount = 0;
    static QGuiApplication application(argumentCount, nullptr);
    QImageReader::setAllocationLimit(0);
}

Palette grid(int scales, int swatches) {
    QList<PaletteScale> rows;
    for (int row = 0; row < scales; ++row) {
        QList<PaletteSwatch> cells;
        for (int cell = 0; cell < swatches; ++cell) {
            const int digits = (row * 7919 + cell * 1299709) & 0xFFFFFF;
            cells.append(PaletteSwatch(QStringLiteral("#%1").arg(digits, 6, 16, QLatin1Char('0')),
                                       QStringLiteral("violet-%1").arg(cell)));
        }
        rows.append(PaletteScale(QStringLiteral("Scale %1").arg(row), cells));
    }
    return Palette(QStringLiteral("Palette"), rows, ReferenceTime{});
}

/// The main thread's share: the rest is done beside it.
void poster(benchmark::State& state, int scales, int swatches) {
    haveFonts();
    const Palette palette = grid(scales, swatches);
    for (auto _ : state)
        benchmark::DoNotOptimize(PalettePoster(palette));
}

void png(benchmark::State& state, int scales, int swatches) {
    haveFonts();
    const PalettePoster poster(grid(scales, swatches));
    qsizetype size = 0;
    for (auto _ : state)
        size = PaletteImageRenderer::pngData(poster).value_or(QByteArray()).size();
    state.counters["bytes"] = static_cast<double>(size);
}

void compression(benchmark::State& state, int scales, int swatches) {
    haveFonts();
    const QImage picture = QImage::fromData(
        PaletteImageRenderer::pngData(PalettePoster(grid(scales, swatches))).value_or(QByteArray()),
        "png");
    for (auto _ : state) {
        QByteArray bytes;
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::WriteOnly);
        benchmark::DoNotOptimize(QImageWriter(&buffer, "png").write(picture));
    }
}

void pdf(benchmark::State& state, int scales, int swatches) {
    haveFonts();
    const PalettePoster poster(grid(scales, swatches));
    qsizetype size = 0;
    for (auto _ : state)
        size = PaletteImageRenderer::pdfData(poster).value_or(QByteArray()).size();
    state.counters["bytes"] = static_cast<double>(size);
}

BENCHMARK_CAPTURE(poster, _, 26, 11)->Name("poster/26x11")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(png, _, 26, 11)->Name("png/26x11/ours")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(compression, _, 26, 11)->Name("png/26x11/peer")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(pdf, _, 26, 11)->Name("pdf/26x11")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(poster, _, 40, 25)->Name("poster/40x25")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(png, _, 40, 25)->Name("png/40x25/ours")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(compression, _, 40, 25)->Name("png/40x25/peer")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(pdf, _, 40, 25)->Name("pdf/40x25")->Unit(benchmark::kMillisecond);

} // namespace
} // namespace dropshade
