// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "color/ColorFormat.h"
#include "color/ColorParser.h"

#include <QColor>
#include <QLatin1String>

#include <benchmark/benchmark.h>

#include <array>
#include <cstddef>
#include <cstdio>
#include <string>
#include <string_view>

namespace dropshade {
namespace {

// What is typed, pasted and kept in palettes, each form once, and two texts that mean no colour.
constexpr std::array<std::string_view, 16> formatMix = {
    "#FF0080",
    "ff0080",
    "#F0A",
    "#FF008080",
    "rebeccapurple",
    "LightGoldenrodYellow",
    "  #ff0080\n",
    "rgb(255 0 128)",
    "rgb(255, 0, 128)",
    "rgb(127.5 0.25 3e1 / 0.5)",
    "rgba(255, 0, 128, 0.5)",
    "hsl(330 100% 50%)",
    "hsl(330, 100%, 50.2%)",
    "hsla(330 100% 50% / 0.25)",
    "light blue",
    "a note that is no colour",
};

// Forms that QColor reads too. It has its alpha first, so the eight digits are left out.
constexpr std::array<std::string_view, 6> sharedForms = {
    "#FF0080", "#ff0080", "#F0A", "rebeccapurple", "lightgoldenrodyellow", "RED",
};

const SRGBColor sample(0.9411764705882353, 0.12345678, 0.5019607843137255, 0.37);

// Items are colours, so that "per_colour" is the mean time of one, not of the whole list.
void reportPerColor(benchmark::State& state, std::size_t colorsPerIteration) {
    state.counters["per_colour"] = benchmark::Counter(
        static_cast<double>(colorsPerIteration),
        benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

template <typename Texts>
void parseAll(benchmark::State& state, const Texts& texts) {
    for (auto _ : state) {
        for (const std::string_view text : texts)
            benchmark::DoNotOptimize(parseColor(text));
    }
    reportPerColor(state, texts.size());
}

void parseFormatMix(benchmark::State& state) {
    parseAll(state, formatMix);
}
BENCHMARK(parseFormatMix)->Name("parseColor/mix");

void parseSharedForms(benchmark::State& state) {
    parseAll(state, sharedForms);
}
BENCHMARK(parseSharedForms)->Name("parseColor/shared/ours");

void parseSharedFormsWithQColor(benchmark::State& state) {
    for (auto _ : state) {
        for (const std::string_view text : sharedForms)
            benchmark::DoNotOptimize(QColor::fromString(
                QLatin1String(text.data(), static_cast<qsizetype>(text.size()))));
    }
    reportPerColor(state, sharedForms.size());
}
BENCHMARK(parseSharedFormsWithQColor)->Name("parseColor/shared/peer");

void formatAll(benchmark::State& state) {
    FormatOptions options;
    options.decimalPlaces = static_cast<int>(state.range(0));
    for (auto _ : state) {
        for (std::size_t format = 0; format < colorFormatCount; ++format)
            benchmark::DoNotOptimize(formatted(sample, static_cast<ColorFormat>(format), options));
    }
    reportPerColor(state, colorFormatCount);
}
BENCHMARK(formatAll)->Name("formatted/all")->Arg(2)->Arg(4);

void formatKeywordForm(benchmark::State& state) {
    for (auto _ : state)
        benchmark::DoNotOptimize(formatted(sample, ColorFormat::nsColorRGB, FormatOptions()));
}
BENCHMARK(formatKeywordForm)->Name("formatted/nsColorRGB/ours");

void formatKeywordFormWithPrintf(benchmark::State& state) {
    for (auto _ : state) {
        std::array<char, 128> text;
        std::snprintf(text.data(), text.size(),
                      "NSColor(calibratedRed: %.2f, green: %.2f, blue: %.2f, alpha: %.2f)",
                      sample.red(), sample.green(), sample.blue(), sample.alpha());
        benchmark::DoNotOptimize(std::string(text.data()));
    }
}
BENCHMARK(formatKeywordFormWithPrintf)->Name("formatted/nsColorRGB/peer");

} // namespace
} // namespace dropshade
