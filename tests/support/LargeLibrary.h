// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "palettes/Palette.h"

namespace dropshade {

/// A palette of 26 scales of 11 labelled swatches; no two numbers give the same.
inline Palette largePalette(int number) {
    constexpr int scaleCount = 26;
    constexpr int shadeCountOfScale = 11;
    QList<PaletteScale> scales;
    for (int scale = 0; scale < scaleCount; ++scale) {
        QList<PaletteSwatch> swatches;
        for (int shade = 0; shade < shadeCountOfScale; ++shade) {
            const int seed = (number * scaleCount + scale) * 7919 + shade * 1299709;
            swatches.append(
                PaletteSwatch(QStringLiteral("#%1").arg(seed & 0xFFFFFF, 6, 16, QLatin1Char('0')),
                              QStringLiteral("violet-%1").arg(shade * 100)));
        }
        scales.append(PaletteScale(QStringLiteral("Scale %1").arg(scale), swatches));
    }
    return Palette(QStringLiteral("Palette %1").arg(number), scales,
                   ReferenceTime{700000000.123456 + number});
}

/// So many of them.
inline QList<Palette> largeLibrary(int count) {
    QList<Palette> palettes;
    for (int number = 0; number < count; ++number)
        palettes.append(largePalette(number));
    return palettes;
}

} // namespace dropshade
