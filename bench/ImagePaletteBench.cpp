// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT

// The sheet that makes a palette from an image, with real threads and time: a photograph of 24
// megapixels from its drop to its colours, a drag of the slider, and the memory when all is over.
// Fails where a budget is exceeded. Run it with QT_QPA_PLATFORM=offscreen.

#include "imagepalette/NewPaletteFromImageView.h"
#include "imagepalette/NewPaletteFromImageWindowController.h"
#include "platform/linux/LargeMemory.h"
#include "platform/linux/PoolBackgroundQueue.h"
#include "platform/linux/QtScheduler.h"
#include "support/FakeAppearance.h"
#include "support/FakeFilePanels.h"
#include "support/FakePasteboard.h"
#include "support/MemoryDefaults.h"
#include "widgets/Slider.h"

#include <QApplication>
#include <QBuffer>
#include <QDropEvent>
#include <QElapsedTimer>
#include <QFile>
#include <QImageReader>
#include <QMimeData>
#include <QTemporaryDir>
#include <QUrl>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <vector>

#include <unistd.h>

using namespace dropshade;

namespace {

constexpr double dropBudget = 400.0;
constexpr double frameBudget = 1000.0 / 60.0;
constexpr double memoryBudget = 2.0;
constexpr int rounds = 7;

/// Soft shapes under the grain of a sensor, as a JPEG of some 12 MB.
QByteArray photograph() {
    constexpr QSize size(6000, 4000);
    QImage image(size, QImage::Format_RGB32);
    std::uint32_t chance = 1;
    for (int y = 0; y < size.height(); ++y) {
        auto* row = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < size.width(); ++x) {
            chance = chance * 1664525U + 1013904223U;
            const int grain = static_cast<int>(chance >> 29) - 4;
            const auto wave = [grain](double phase) {
                return std::clamp(static_cast<int>(128.0 + 100.0 * std::sin(phase)) + grain, 0,
                                  255);
            };
            row[x] = qRgb(wave(x / 900.0 + y / 1700.0), wave(y / 700.0 - x / 2300.0),
                          wave((x + y) / 1100.0));
        }
    }
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "jpeg", 92);
    return bytes;
}

double residentMegabytes() {
    QFile file(QStringLiteral("/proc/self/statm"));
    if (!file.open(QIODevice::ReadOnly))
        return 0.0;
    const double pages = file.readAll().split(' ').at(1).toDouble();
    return pages * static_cast<double>(sysconf(_SC_PAGESIZE)) / 1048576.0;
}

double median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values.at(values.size() / 2);
}

class Desk {
public:
    NewPaletteFromImageView& open() {
        m_controller.present(nullptr);
        QApplication::processEvents();
        return *m_controller.window();
    }

    void close() {
        m_controller.window()->close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QApplication::processEvents();
    }

private:
    FakeAppearance m_appearance;
    Look m_look{m_appearance};
    MemoryDefaults m_defaults;
    QtScheduler m_scheduler;
    PoolBackgroundQueue m_queue;
    FakePasteboard m_pasteboard;
    FakeFilePanels m_panels;
    AppSettings m_settings{m_defaults, m_scheduler};
    PalettePresets m_presets{m_scheduler};
    UserPaletteStore m_store{m_defaults, m_scheduler, m_settings, m_presets};
    NewPaletteFromImageWindowController m_controller{{m_look,
                                                      m_defaults,
                                                      m_store,
                                                      m_panels,
                                                      {m_scheduler, m_queue, m_pasteboard},
                                                      [](const SRGBColor&) {}}};
};

/// Runs the event loop until the sheet's strip has colours; the longest single turn of it.
double turnUntil(const QWidget& sheet, int colors) {
    double longest = 0.0;
    const auto shown = [&sheet] {
        int count = 0;
        for (const QWidget* child : sheet.findChildren<QWidget*>())
            count += child->inherits("dropshade::StripSwatch") && child->isVisible() ? 1 : 0;
        return count;
    };
    while (shown() != colors) {
        QElapsedTimer turn;
        turn.start();
        QApplication::processEvents();
        longest = std::max(longest, static_cast<double>(turn.nsecsElapsed()) / 1e6);
    }
    return longest;
}

struct DropTimes {
    double whole = 0.0;
    double blocked = 0.0;
};

DropTimes drop(NewPaletteFromImageView& sheet, const QString& path) {
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(path)});
    // Qt drops on whoever has let the drag in.
    QDragEnterEvent enter(QPoint(100, 100), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&sheet, &enter);
    QElapsedTimer time;
    time.start();
    QDropEvent event(QPointF(100, 100), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&sheet, &event);
    const double handled = static_cast<double>(time.nsecsElapsed()) / 1e6;
    const double turns = turnUntil(sheet, 8);
    return {static_cast<double>(time.nsecsElapsed()) / 1e6, std::max(handled, turns)};
}

/// The longest turn of a drag over all counts and back, each step drawn.
double dragSlider(NewPaletteFromImageView& sheet) {
    auto* slider = sheet.findChild<Slider*>();
    double longest = 0.0;
    const auto step = [&](int value) {
        QElapsedTimer turn;
        turn.start();
        slider->setValue(value);
        sheet.repaint();
        QApplication::processEvents();
        longest = std::max(longest, static_cast<double>(turn.nsecsElapsed()) / 1e6);
        // The hand goes on after a frame; what lands meanwhile counts as well.
        QElapsedTimer frame;
        frame.start();
        while (frame.elapsed() < 40) {
            turn.restart();
            QApplication::processEvents();
            longest = std::max(longest, static_cast<double>(turn.nsecsElapsed()) / 1e6);
        }
    };
    for (int value = 2; value <= 24; ++value)
        step(value);
    for (int value = 24; value >= 2; --value)
        step(value);
    return longest;
}

bool report(const char* what, double value, double budget, const char* unit) {
    const bool isKept = value <= budget;
    std::printf("%-44s %8.1f %s, budget %.1f: %s\n", what, value, unit, budget,
                isKept ? "kept" : "EXCEEDED");
    return isKept;
}

} // namespace

int main(int argc, char** argv) {
    giveLargeMemoryBack();
    QApplication application(argc, argv);
    std::setvbuf(stdout, nullptr, _IONBF, 0);
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("photograph.jpeg"));
    {
        QFile file(path);
        file.open(QIODevice::WriteOnly);
        file.write(photograph());
        std::printf("the photograph: 6000 x 4000, %.1f MB\n", double(file.size()) / 1048576.0);
    }
    std::vector<double> floors;
    for (int round = 0; round < 3; ++round) {
        QElapsedTimer time;
        time.start();
        const bool isRead = !QImageReader(path).read().isNull();
        floors.push_back(isRead ? static_cast<double>(time.nsecsElapsed()) / 1e6 : 0.0);
    }
    Desk desk;
    // Once for what is loaded at the first use and stays.
    drop(desk.open(), path);
    desk.close();
    const double before = residentMegabytes();
    std::vector<double> whole;
    std::vector<double> blocked;
    std::vector<double> dragged;
    for (int round = 0; round < rounds; ++round) {
        NewPaletteFromImageView& sheet = desk.open();
        const DropTimes times = drop(sheet, path);
        whole.push_back(times.whole);
        blocked.push_back(times.blocked);
        if (round == 0)
            dragged.push_back(dragSlider(sheet));
        desk.close();
    }
    std::printf("a whole decode by the library: %.1f ms\n", median(floors));
    bool isKept = report("drop to colours, median", median(whole), dropBudget, "ms");
    isKept &=
        report("longest turn of the event loop by the drop", median(blocked), median(floors), "ms");
    isKept &=
        report("longest turn while the slider is dragged", dragged.front(), frameBudget, "ms");
    isKept &=
        report("memory kept by seven sheets", residentMegabytes() - before, memoryBudget, "MB");
    return isKept ? 0 : 1;
}
