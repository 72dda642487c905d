// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT

// The palette store with a large library: 100 palettes of 26 scales of 11 labelled swatches.

#include "StandingClock.h"
#include "app/SettingsReaders.h"
#include "palettes/PaletteJson.h"
#include "palettes/UserPaletteStore.h"
#include "platform/linux/SqliteDefaults.h"
#include "support/LargeLibrary.h"
#include "json/UuidText.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <malloc.h>

namespace dropshade {
namespace {

constexpr int paletteCount = 100;
constexpr int swatchCount = paletteCount * 26 * 11;

/// The library on a disk, with what a machine needs around it.
struct Machine {
    Machine() {
        defaults.setValue(keys::userPalettes, *encodedPalettes(largeLibrary(paletteCount)));
        defaults.setValue(keys::collapsedPaletteIds, QStringList());
    }

    QTemporaryDir folder;
    SqliteDefaults defaults{folder.filePath(QStringLiteral("defaults.sqlite"))};
    bench::StandingClock scheduler;
    AppSettings settings{defaults, scheduler};
    PalettePresets presets{scheduler};
};

void perSwatch(benchmark::State& state) {
    state.counters["per_swatch"] = benchmark::Counter(
        swatchCount, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

/// Real time: what the main thread waits for, the disk with it.
void load(benchmark::State& state) {
    Machine machine;
    std::unique_ptr<UserPaletteStore> store;
    std::size_t bytes = 0;
    for (auto _ : state) {
        const std::size_t before = mallinfo2().uordblks;
        store = std::make_unique<UserPaletteStore>(machine.defaults, machine.scheduler,
                                                   machine.settings, machine.presets);
        bytes = mallinfo2().uordblks - before;
        state.PauseTiming();
        store.reset();
        state.ResumeTiming();
    }
    state.counters["bytes_per_swatch"] = double(bytes) / swatchCount;
    state.counters["megabytes"] = double(bytes) / 1e6;
    perSwatch(state);
}
BENCHMARK(load)->Name("store/load")->UseRealTime()->Unit(benchmark::kMillisecond);

void save(benchmark::State& state) {
    Machine machine;
    UserPaletteStore store(machine.defaults, machine.scheduler, machine.settings, machine.presets);
    for (auto _ : state)
        store.flushPendingSave();
    perSwatch(state);
}
BENCHMARK(save)->Name("store/save")->UseRealTime()->Unit(benchmark::kMillisecond);

void editBurst(benchmark::State& state) {
    Machine machine;
    UserPaletteStore store(machine.defaults, machine.scheduler, machine.settings, machine.presets);
    const Palette last = store.palettes().last();
    const QUuid scaleId = last.scales().last().id();
    const QUuid swatchId = last.scales().last().swatches().last().id();
    for (auto _ : state) {
        for (int edit = 0; edit < 1000; ++edit)
            store.updateSwatch(last.id(), scaleId,
                               PaletteSwatch(swatchId, QStringLiteral("#%1").arg(edit)));
    }
}
BENCHMARK(editBurst)->Name("store/1000_edits_before_their_save")->Unit(benchmark::kMillisecond);

void encodeOurs(benchmark::State& state) {
    const QList<Palette> palettes = largeLibrary(paletteCount);
    for (auto _ : state)
        benchmark::DoNotOptimize(encodedPalettes(palettes));
    perSwatch(state);
}
BENCHMARK(encodeOurs)->Name("json/encode/ours")->Unit(benchmark::kMillisecond);

QJsonArray tree(const QList<Palette>& palettes) {
    QJsonArray paletteArray;
    for (const Palette& palette : palettes) {
        QJsonArray scaleArray;
        for (const PaletteScale& scale : palette.scales()) {
            QJsonArray swatchArray;
            for (const PaletteSwatch& swatch : scale.swatches())
                swatchArray.append(QJsonObject{{QStringLiteral("id"), uuidText(swatch.id())},
                                               {QStringLiteral("value"), swatch.value()},
                                               {QStringLiteral("label"), *swatch.label()}});
            scaleArray.append(QJsonObject{{QStringLiteral("id"), uuidText(scale.id())},
                                          {QStringLiteral("name"), scale.name()},
                                          {QStringLiteral("swatches"), swatchArray}});
        }
        paletteArray.append(
            QJsonObject{{QStringLiteral("id"), uuidText(palette.id())},
                        {QStringLiteral("name"), palette.name()},
                        {QStringLiteral("lastModified"), palette.lastModified().seconds},
                        {QStringLiteral("scales"), scaleArray}});
    }
    return paletteArray;
}

void encodePeer(benchmark::State& state) {
    const QList<Palette> palettes = largeLibrary(paletteCount);
    for (auto _ : state)
        benchmark::DoNotOptimize(QJsonDocument(tree(palettes)).toJson(QJsonDocument::Compact));
    perSwatch(state);
}
BENCHMARK(encodePeer)->Name("json/encode/peer")->Unit(benchmark::kMillisecond);

/// Ours makes palettes with parsed colours; the peer only parses.
void decodeOurs(benchmark::State& state) {
    const QByteArray json = *encodedPalettes(largeLibrary(paletteCount));
    for (auto _ : state)
        benchmark::DoNotOptimize(decodedPalettes(json, {}));
    perSwatch(state);
}
BENCHMARK(decodeOurs)->Name("json/decode/ours")->Unit(benchmark::kMillisecond);

void decodePeer(benchmark::State& state) {
    const QByteArray json = *encodedPalettes(largeLibrary(paletteCount));
    for (auto _ : state)
        benchmark::DoNotOptimize(QJsonDocument::fromJson(json));
    perSwatch(state);
}
BENCHMARK(decodePeer)->Name("json/decode/peer")->Unit(benchmark::kMillisecond);

/// One question for each swatch of the library, of which one in a hundred is a favourite.
void pinLookUps(benchmark::State& state) {
    Machine machine;
    const QList<Palette> palettes = largeLibrary(paletteCount);
    QList<QUuid> ids;
    for (const Palette& palette : palettes) {
        for (const PaletteScale& scale : palette.scales()) {
            for (const PaletteSwatch& swatch : scale.swatches()) {
                ids.append(swatch.id());
                if (ids.size() % 100 == 0)
                    machine.settings.pinSwatch(swatch, palette, scale);
            }
        }
    }
    for (auto _ : state) {
        int count = 0;
        for (const QUuid& id : ids)
            count += machine.settings.pinnedSwatchIds().contains(id) ? 1 : 0;
        benchmark::DoNotOptimize(count);
    }
    perSwatch(state);
}
BENCHMARK(pinLookUps)->Name("pins/look_ups")->Unit(benchmark::kMicrosecond);

void copyLibrary(benchmark::State& state) {
    const QList<Palette> palettes = largeLibrary(paletteCount);
    for (auto _ : state) {
        QList<Palette> copy = palettes;
        benchmark::DoNotOptimize(copy);
    }
}
BENCHMARK(copyLibrary)->Name("palettes/copy_of_the_library");

} // namespace
} // namespace dropshade
