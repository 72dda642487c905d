// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
// The palettes window over 100 palettes of 26 scales of 11 swatches, drawn in software.

#include "palettes/PaletteList.h"
#include "palettes/PalettesWindow.h"
#include "palettes/PalettesWindowController.h"
#include "palettes/ScaleRowWidget.h"
#include "support/FakeAppearance.h"
#include "support/FakePaletteCommands.h"
#include "support/LargeLibrary.h"
#include "support/Machine.h"

#include <QApplication>
#include <QMouseEvent>

#include <benchmark/benchmark.h>

#include <malloc.h>

namespace dropshade {
namespace {

constexpr int paletteCount = 100;
constexpr int swatchCount = paletteCount * 26 * 11;

QApplication& application() {
    static int count = 1;
    static char name[] = "bench";
    static char* arguments[] = {name, nullptr};
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static QApplication instance(count, arguments);
    return instance;
}

/// What the library is closed or open to.
enum class Open { None, All };

struct Bench {
    explicit Bench(Open open) {
        application();
        machine.store().setPalettes(largeLibrary(paletteCount));
        QSet<QUuid> ids;
        for (const Palette& palette : machine.store().palettes())
            ids.insert(palette.id());
        machine.store().setCollapsed(ids, open == Open::None);
        makeController();
    }

    void makeController() {
        controller =
            std::make_unique<PalettesWindowController>(PalettesWindowController::Surroundings{
                look,
                {machine.defaults(), machine.scheduler(), machine.settings(), machine.store(),
                 presets, commands},
                [] { return std::optional<QString>(); }});
    }
    /// Shown, with everything drawn.
    void open() {
        controller->ensureWindow().show();
        drawFrame();
    }
    /// Draws what has changed now, where the platform would wait for the next frame.
    void drawFrame() {
        QApplication::processEvents();
        QEvent update(QEvent::UpdateRequest);
        QApplication::sendEvent(&controller->ensureWindow(), &update);
    }
    PaletteList& list() { return controller->ensureWindow().list(); }

    Machine machine;
    FakeAppearance appearance;
    Look look{appearance};
    FakePaletteCommands commands;
    PalettePresets presets{machine.scheduler()};
    std::unique_ptr<PalettesWindowController> controller;
};

/// From nothing to a drawn window.
void openWindow(benchmark::State& state, Open open) {
    Bench bench(open);
    for (auto _ : state) {
        bench.open();
        state.PauseTiming();
        bench.controller.reset();
        bench.makeController();
        state.ResumeTiming();
    }
}
BENCHMARK_CAPTURE(openWindow, closed, Open::None)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(openWindow, all_open, Open::All)->Unit(benchmark::kMillisecond);

/// A notch of the wheel and the frame that follows.
void scrollFrame(benchmark::State& state) {
    Bench bench(Open::All);
    bench.open();
    int step = 53;
    for (auto _ : state) {
        const int before = bench.list().view().top();
        bench.list().scrollBy(step);
        if (bench.list().view().top() == before)
            step = -step;
        bench.drawFrame();
    }
}
BENCHMARK(scrollFrame)->Unit(benchmark::kMillisecond);

/// The pointer goes to the next swatch.
void hoverFrame(benchmark::State& state) {
    Bench bench(Open::All);
    bench.open();
    PaletteList& list = bench.list();
    const QRectF first = list.areaOf(list.elementsOf(1).at(1));
    int place = 0;
    for (auto _ : state) {
        place = (place + 1) % 11;
        const QPointF point = first.center() + QPointF(33.0 * place, 0.0);
        QMouseEvent move(QEvent::MouseMove, point, list.mapToGlobal(point), Qt::NoButton,
                         Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(&list, &move);
        bench.drawFrame();
    }
    qint64 painted = 0;
    for (const auto* row : list.findChildren<ScaleRowWidget*>())
        painted += row->paintedSwatches();
    state.counters["swatches_painted_per_move"] = double(painted) / double(state.iterations());
}
BENCHMARK(hoverFrame)->Unit(benchmark::kMicrosecond);

/// All rows get another height, as while the slider of the sizes is dragged.
void resizeFrame(benchmark::State& state) {
    Bench bench(Open::All);
    bench.open();
    int size = 0;
    for (auto _ : state) {
        size = (size + 1) % swatchSizeCount;
        bench.machine.settings().setSwatchSize(SwatchSize(size));
        bench.drawFrame();
    }
}
BENCHMARK(resizeFrame)->Unit(benchmark::kMillisecond);

/// What the window takes beside the library itself.
void memory(benchmark::State& state) {
    Bench bench(Open::All);
    Bench warm(Open::All);
    warm.open();
    for (auto _ : state) {
        const std::size_t before = mallinfo2().uordblks;
        bench.open();
        const std::size_t bytes = mallinfo2().uordblks - before;
        state.counters["window_bytes_per_swatch"] = double(bytes) / swatchCount;
        state.counters["window_megabytes"] = double(bytes) / 1e6;
    }
}
BENCHMARK(memory)->Iterations(1)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace dropshade
