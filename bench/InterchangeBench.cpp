// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT

// Palette files of 100,000 colours. With DROPSHADE_BENCH_FOLDER set it leaves them there, for peers
// to read: see interchange_bench.py.

#include "interchange/ASECoder.h"
#include "interchange/CLRCoder.h"

#include <QDir>
#include <QFile>
#include <QtEndian>

#include <benchmark/benchmark.h>

#include <type_traits>

namespace dropshade {
namespace {

constexpr int scaleCount = 1000;
constexpr int swatchesOfScale = 100;
constexpr int swatchCount = scaleCount * swatchesOfScale;

Palette palette() {
    QList<PaletteScale> scales;
    for (int scale = 0; scale < scaleCount; ++scale) {
        QList<PaletteSwatch> swatches;
        for (int place = 0; place < swatchesOfScale; ++place) {
            const int digits = (scale * 7919 + place * 1299709) & 0xFFFFFF;
            swatches.append(
                PaletteSwatch(QStringLiteral("#%1").arg(digits, 6, 16, QLatin1Char('0')),
                              QStringLiteral("violet-%1").arg(place * 10)));
        }
        scales.append(PaletteScale(QStringLiteral("Scale %1").arg(scale), swatches));
    }
    return Palette(QStringLiteral("Large"), scales, ReferenceTime{});
}

void leave(const char* name, const QByteArray& bytes) {
    const QString folder = qEnvironmentVariable("DROPSHADE_BENCH_FOLDER");
    QFile file(QDir(folder).filePath(QString::fromLatin1(name)));
    if (!folder.isEmpty() && file.open(QIODevice::WriteOnly))
        file.write(bytes);
}

template <typename Coder>
void encode(benchmark::State& state) {
    const Palette large = palette();
    for (auto _ : state)
        benchmark::DoNotOptimize(Coder::encode(large));
}

template <typename Coder>
void decode(benchmark::State& state) {
    const QByteArray bytes = Coder::encode(palette());
    leave(std::is_same_v<Coder, ASECoder> ? "large.ase" : "large.clr", bytes);
    for (auto _ : state)
        benchmark::DoNotOptimize(Coder::decode(bytes, ReferenceTime{}));
    state.counters["bytes"] = double(bytes.size());
}

/// The same colours outside groups: the peers lose their way at the end of a group.
QByteArray withoutGroups(const QByteArray& file) {
    constexpr qsizetype headerSize = 12;
    constexpr qsizetype blockHeaderSize = 6;
    QByteArray flat = file.first(headerSize);
    for (qsizetype at = headerSize; at < file.size();) {
        const qsizetype size = blockHeaderSize + qFromBigEndian<qint32>(file.constData() + at + 2);
        if (file.at(at) == 0) // The types of what concerns groups begin with 0xC0.
            flat += file.mid(at, size);
        at += size;
    }
    qToBigEndian<qint32>(swatchCount, flat.data() + headerSize - 4);
    return flat;
}

void decodeFlat(benchmark::State& state) {
    const QByteArray bytes = withoutGroups(ASECoder::encode(palette()));
    leave("flat.ase", bytes);
    for (auto _ : state)
        benchmark::DoNotOptimize(ASECoder::decode(bytes, ReferenceTime{}));
}

/// What a swatch costs by itself, with its id and its parsed colour.
void build(benchmark::State& state) {
    for (auto _ : state)
        benchmark::DoNotOptimize(palette());
}

BENCHMARK(build)->Name("palette/build")->Unit(benchmark::kMillisecond);
BENCHMARK_TEMPLATE(encode, ASECoder)->Name("ase/encode")->Unit(benchmark::kMillisecond);
BENCHMARK_TEMPLATE(decode, ASECoder)->Name("ase/decode")->Unit(benchmark::kMillisecond);
BENCHMARK(decodeFlat)->Name("ase/decode_without_groups")->Unit(benchmark::kMillisecond);
BENCHMARK_TEMPLATE(encode, CLRCoder)->Name("clr/encode")->Unit(benchmark::kMillisecond);
BENCHMARK_TEMPLATE(decode, CLRCoder)->Name("clr/decode")->Unit(benchmark::kMillisecond);

} // namespace
} // namespace dropshade
