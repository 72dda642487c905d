// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
// Usage: QuantizeBench [PHOTOGRAPH]...
// Our quantisers beside their peers on 200 × 200 pixels of each photograph and of noise, and the
// contrast solvers. A Markdown table on standard output; fails where a budget is exceeded.
//
// The error is that of every pixel to the nearest colour of the palette, the same for all. The
// times of Pillow and ImageMagick include mapping the pixels to the palette; ours and
// libimagequant's don't.
#include "QuantizePeers.h"
#include "contrast/ContrastSolver.h"
#include "imagepalette/ImageLoader.h"

#include <QFileInfo>
#include <QGuiApplication>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <limits>
#include <random>

namespace {

using namespace dropshade;
using namespace dropshade::bench;

constexpr int runs = 9;
constexpr int side = 200;
constexpr double solverBudgetMicroseconds = 100.0;

struct Ours {
    const char* name;
    double budgetMilliseconds;
    std::vector<QuantizedColor> (*quantize)(std::span<const Pixel>, int);
};

const Ours ours[] = {
    {"**K-means**", 12.0,
     [](std::span<const Pixel> pixels, int k) { return ImageQuantizer::kMeans(pixels, k); }},
    {"**median cut**", 6.0, ImageQuantizer::medianCut},
    {"**octree**", 4.0, ImageQuantizer::octree},
};

Sample noise() {
    std::mt19937 generator(1);
    std::uniform_int_distribution<int> channel(0, 255);
    Sample sample{"noise", side, side, std::vector<Pixel>(side * side)};
    for (Pixel& pixel : sample.pixels)
        pixel = {static_cast<std::uint8_t>(channel(generator)),
                 static_cast<std::uint8_t>(channel(generator)),
                 static_cast<std::uint8_t>(channel(generator))};
    return sample;
}

/// The middle square of a photograph, as 40,000 pixels.
std::vector<Sample> photograph(const QString& path) {
    const auto loaded = ImageLoader::loadFile(path);
    if (!loaded)
        return {};
    const QSize size = loaded->image.size();
    const int edge = std::min(size.width(), size.height());
    const auto buffer = pixelBufferOf(
        loaded->image.copy((size.width() - edge) / 2, (size.height() - edge) / 2, edge, edge));
    if (!buffer || buffer->pixels().size() != side * side)
        return {};
    return {{QFileInfo(path).completeBaseName().toStdString(),
             side,
             side,
             {buffer->pixels().begin(), buffer->pixels().end()}}};
}

/// Per channel.
double meanSquaredError(const Sample& sample, const std::vector<Pixel>& palette) {
    double total = 0.0;
    for (const Pixel pixel : sample.pixels) {
        int least = std::numeric_limits<int>::max();
        for (const Pixel color : palette) {
            const int red = pixel.red - color.red;
            const int green = pixel.green - color.green;
            const int blue = pixel.blue - color.blue;
            least = std::min(least, red * red + green * green + blue * blue);
        }
        total += least;
    }
    return total / (3.0 * static_cast<double>(sample.pixels.size()));
}

void print(const Sample& sample, int k, Outcome outcome) {
    std::sort(outcome.times.begin(), outcome.times.end());
    const double error = meanSquaredError(sample, outcome.palette);
    std::printf("| %s | %d | %s | %.2f | %.2f | %zu | %.1f | %.2f |\n", sample.name.c_str(), k,
                outcome.quantizer.c_str(), outcome.times[outcome.times.size() / 2],
                outcome.times.front(), outcome.palette.size(), error,
                10.0 * std::log10(255.0 * 255.0 / error));
}

/// Whether ours are within their budgets, by the best of the runs.
bool compare(const Sample& sample, int k) {
    bool isWithin = true;
    for (const Ours& quantizer : ours) {
        const Outcome outcome = timed(quantizer.name, runs, [&] {
            std::vector<Pixel> palette;
            for (const QuantizedColor& color : quantizer.quantize(sample.pixels, k))
                palette.push_back({color.r, color.g, color.b});
            return palette;
        });
        print(sample, k, outcome);
        isWithin &= *std::min_element(outcome.times.begin(), outcome.times.end()) <=
                    quantizer.budgetMilliseconds;
    }
    print(sample, k, byImagequant(sample, k, runs));
    for (const Outcome& outcome : byPillow(sample, k, runs))
        print(sample, k, outcome);
    print(sample, k, byMagick(sample, k, runs));
    return isWithin;
}

/// A pair that needs both searches, and in which each is found.
double solverMicroseconds(bool apca) {
    const SRGBColor moved(0.45, 0.5, 0.55);
    const SRGBColor fixed(0.47, 0.47, 0.47);
    constexpr int calls = 1000;
    Outcome outcome = timed("solver", runs, [&]() -> std::vector<Pixel> {
        std::vector<Pixel> kept;
        for (int call = 0; call < calls; ++call) {
            const auto answer = apca ? adjustedToMeetLc(moved, fixed, 30.0, false)
                                     : adjustedToMeetRatio(moved, fixed, 3.0);
            kept.resize(answer ? 1 : 0);
        }
        return kept;
    });
    std::sort(outcome.times.begin(), outcome.times.end());
    return outcome.times[outcome.times.size() / 2] * 1000.0 / calls;
}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    std::vector<Sample> samples{noise()};
    const QStringList paths = QGuiApplication::arguments().mid(1);
    for (const QString& path : paths) {
        for (Sample& sample : photograph(path))
            samples.push_back(std::move(sample));
    }

    std::puts("| image | k | quantiser | median ms | best ms | colours | MSE | PSNR dB |");
    std::puts("|---|---|---|---|---|---|---|---|");
    bool isWithin = true;
    for (const Sample& sample : samples) {
        for (const int k : {8, 24})
            isWithin &= compare(sample, k);
    }
    for (const bool apca : {false, true}) {
        const double microseconds = solverMicroseconds(apca);
        std::printf("\n%s solver: %.1f us a call\n", apca ? "APCA" : "WCAG", microseconds);
        isWithin &= microseconds <= solverBudgetMicroseconds;
    }
    std::puts(isWithin ? "\nwithin budget" : "\nOVER BUDGET");
    return isWithin ? 0 : 1;
}
