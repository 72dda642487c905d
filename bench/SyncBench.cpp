// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT

// The engine over a replica on the disk, with libraries of palettes of 286 labelled swatches.

#include "StandingClock.h"
#include "app/SettingsReaders.h"
#include "palettes/PaletteJson.h"
#include "platform/linux/ReplicatedKeyValueStore.h"
#include "platform/linux/SqliteDefaults.h"
#include "support/LargeLibrary.h"
#include "support/LongestTurn.h"
#include "support/ManualBackgroundQueue.h"
#include "sync/CloudSyncEngine.h"
#include "sync/SyncValueCodec.h"

#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <malloc.h>

#include <algorithm>

namespace dropshade {
namespace {

constexpr int swatchCount = 26 * 11;

/// A transport that brings what the benchmark gives it, and takes nothing.
class HandTransport : public ReplicaTransport {
public:
    void start(const QByteArray&) override {}
    void send(const QList<OutgoingEntry>&) override {}
    bool supersedes(const QByteArray& version, const QByteArray& known) const override {
        return version != known;
    }
};

/// A machine with an empty library before a cloud of so many palettes.
struct Machine {
    /// Without the presets that a new machine begins with.
    struct EmptyLibrary : SqliteDefaults {
        explicit EmptyLibrary(const QString& path) : SqliteDefaults(path) {
            setValue(keys::userPalettes, QByteArray("[]"));
            setValue(keys::collapsedPaletteIds, QStringList());
        }
    };

    explicit Machine(int paletteCount) {
        engine.start();
        for (int number = 0; number < paletteCount; ++number) {
            const Palette palette = largePalette(number);
            news.append({cloudKeys::palette(palette.id()),
                         compressedValue(*encodedPalette(palette)), ReferenceTime{}, "1"});
        }
    }

    QTemporaryDir folder;
    EmptyLibrary defaults{folder.filePath(QStringLiteral("defaults.sqlite"))};
    bench::StandingClock scheduler;
    AppSettings settings{defaults, scheduler};
    PalettePresets presets{scheduler};
    UserPaletteStore palettes{defaults, scheduler, settings, presets};
    HandTransport* transport = nullptr;
    ReplicatedKeyValueStore kvs{
        defaults,
        scheduler,
        {[this](const CloudAccount&) {
             auto made = std::make_unique<HandTransport>();
             transport = made.get();
             return made;
         },
         [this](const CloudAccount&) { return folder.filePath(QStringLiteral("r.sqlite")); }}};
    ManualBackgroundQueue queue;
    CloudSyncEngine engine{{kvs, defaults, scheduler, settings, palettes, queue}};
    QList<RemoteEntry> news;
};

void perSwatch(benchmark::State& state) {
    state.counters["per_swatch"] = benchmark::Counter(
        double(state.range(0) * swatchCount),
        benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

/// The merge of a library that this machine has nothing of, and its save.
void fullPull(benchmark::State& state) {
    std::size_t bytes = 0;
    for (auto _ : state) {
        state.PauseTiming();
        auto machine = std::make_unique<Machine>(int(state.range(0)));
        Q_EMIT machine->transport->received(machine->news);
        const std::size_t before = mallinfo2().uordblks;
        state.ResumeTiming();
        Q_EMIT machine->transport->caughtUp("1");
        state.PauseTiming();
        bytes = mallinfo2().uordblks - before;
        if (machine->palettes.palettes().size() != state.range(0))
            state.SkipWithError("not all palettes came");
        machine.reset();
        state.ResumeTiming();
    }
    state.counters["megabytes"] = double(bytes) / 1e6;
    perSwatch(state);
}
BENCHMARK(fullPull)
    ->Name("sync/full-pull")
    ->Arg(10)
    ->Arg(100)
    ->Arg(1000)
    ->Unit(benchmark::kMillisecond);

/// As the first pull of all, but of one palette among those that are known.
void pullOfOne(benchmark::State& state) {
    Machine machine(int(state.range(0)));
    Q_EMIT machine.transport->received(machine.news);
    Q_EMIT machine.transport->caughtUp("1");
    int round = 1;
    for (auto _ : state) {
        Palette palette = machine.palettes.palettes().first();
        palette.setLastModified(ReferenceTime{750000000.0 + ++round});
        Q_EMIT machine.transport->received(
            {{cloudKeys::palette(palette.id()), compressedValue(*encodedPalette(palette)),
              ReferenceTime{}, QByteArray::number(round)}});
        Q_EMIT machine.transport->caughtUp("1");
    }
}
BENCHMARK(pullOfOne)
    ->Name("sync/pull-of-one-change")
    ->Arg(10)
    ->Arg(100)
    ->Arg(1000)
    ->Unit(benchmark::kMillisecond);

void pushOfOne(benchmark::State& state) {
    Machine machine(int(state.range(0)));
    Q_EMIT machine.transport->received(machine.news);
    Q_EMIT machine.transport->caughtUp("1");
    machine.engine.flushPendingPushes();
    int round = 1;
    for (auto _ : state) {
        state.PauseTiming();
        QList<Palette> palettes = machine.palettes.palettes();
        palettes[0].setLastModified(ReferenceTime{750000000.0 + ++round});
        machine.palettes.setPalettes(palettes);
        machine.palettes.flushPendingSave();
        state.ResumeTiming();
        machine.engine.flushPendingPushes();
    }
}
BENCHMARK(pushOfOne)
    ->Name("sync/push-of-one-edit")
    ->Arg(10)
    ->Arg(100)
    ->Arg(1000)
    ->Unit(benchmark::kMillisecond);

/// The longer of the two turns of the main thread in which sync is turned on and all of a library
/// goes into a cloud that has nothing of it: that before it is encoded on another thread, and that
/// after. In processor time.
void firstPushTurn(benchmark::State& state) {
    const QList<Palette> palettes = largeLibrary(int(state.range(0)));
    for (auto _ : state) {
        auto machine = std::make_unique<Machine>(0);
        machine->engine.stop();
        machine->palettes.setPalettes(palettes);
        machine->palettes.flushPendingSave();
        const auto start = processorMilliseconds();
        machine->engine.start();
        const auto begun = processorMilliseconds();
        machine->queue.work();
        const auto encoded = processorMilliseconds();
        machine->queue.land();
        const auto end = processorMilliseconds();
        state.SetIterationTime(std::max(begun - start, end - encoded) / 1e3);
        if (machine->kvs.dictionaryRepresentation().size() < std::size_t(state.range(0)))
            state.SkipWithError("not all palettes went");
    }
}
BENCHMARK(firstPushTurn)
    ->Name("sync/longest-turn-of-first-push")
    ->Arg(10)
    ->Arg(100)
    ->Arg(1000)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

/// All of a library goes into a cloud that has nothing of it, when the program ends before that is
/// prepared: encoded, compressed and kept, in one turn.
void firstPush(benchmark::State& state) {
    const QList<Palette> palettes = largeLibrary(int(state.range(0)));
    for (auto _ : state) {
        state.PauseTiming();
        auto machine = std::make_unique<Machine>(0);
        machine->palettes.setPalettes(palettes);
        machine->palettes.flushPendingSave();
        state.ResumeTiming();
        machine->engine.flushPendingPushes();
        state.PauseTiming();
        machine.reset();
        state.ResumeTiming();
    }
    perSwatch(state);
}
BENCHMARK(firstPush)
    ->Name("sync/first-push")
    ->Arg(10)
    ->Arg(100)
    ->Arg(1000)
    ->Unit(benchmark::kMillisecond);

/// What of that is the write of the values into the replica.
void keepLibrary(benchmark::State& state) {
    QList<std::pair<QString, QByteArray>> values;
    for (int number = 0; number < state.range(0); ++number) {
        const Palette palette = largePalette(number);
        values.append(
            {cloudKeys::palette(palette.id()), compressedValue(*encodedPalette(palette))});
    }
    for (auto _ : state) {
        state.PauseTiming();
        auto machine = std::make_unique<Machine>(0);
        for (const auto& [key, value] : values)
            machine->kvs.setValue(key, value);
        state.ResumeTiming();
        machine->kvs.synchronize();
        state.PauseTiming();
        machine.reset();
        state.ResumeTiming();
    }
}
BENCHMARK(keepLibrary)
    ->Name("sync/keep-a-library")
    ->Arg(10)
    ->Arg(100)
    ->Arg(1000)
    ->Unit(benchmark::kMillisecond);

void compress(benchmark::State& state) {
    const QByteArray json = *encodedPalette(largePalette(1));
    std::size_t size = 0;
    for (auto _ : state)
        size = std::size_t(compressedValue(json).size());
    state.counters["json"] = double(json.size());
    state.counters["value"] = double(size);
}
BENCHMARK(compress)->Name("sync/compress")->Unit(benchmark::kMicrosecond);

void decompress(benchmark::State& state) {
    const QByteArray value = compressedValue(*encodedPalette(largePalette(1)));
    for (auto _ : state)
        benchmark::DoNotOptimize(decompressedValue(value));
}
BENCHMARK(decompress)->Name("sync/decompress")->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace dropshade
