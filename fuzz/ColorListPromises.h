// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "Require.h"

#include "interchange/CLRCoder.h"
#include "interchange/HexText.h"
#include "interchange/KeyBudget.h"

#include <cstddef>
#include <cstdint>

namespace dropshade {

/// What holds for every file that is read as a colour list.
inline void checkColorList(const QByteArray& bytes) {
    // The system's profile of ink is no foreign file, and loading it takes a hundred times as long
    // as all else.
    static const bool isWithoutProfile = qputenv("XDG_DATA_DIRS", "/nonexistent");
    require(isWithoutProfile, "the environment can be set");
    const auto list = ColorList::read(QString(), bytes);
    if (!list)
        return;
    const Palette palette = CLRCoder::paletteOf(*list, ReferenceTime{});
    qsizetype colors = 0;
    ColorList known(QString{});
    for (const QString& key : list->allKeys()) {
        const auto color = list->colorWithKey(key);
        colors += color ? 1 : 0;
        known.setColor(color.value_or(SRGBColor()), KeyBudget::cleaned(key));
    }
    qsizetype swatches = 0;
    for (const PaletteScale& scale : palette.scales())
        swatches += scale.swatches().size();
    require(swatches == colors, "each colour is a swatch");
    const auto copy = ColorList::read(QString(), known.bytes());
    require(copy.has_value(), "what is written can be read");
    for (const QString& key : known.allKeys()) {
        if (key.endsWith(QChar(u'\0')))
            continue; // Loses one more.
        const auto color = copy->colorWithKey(key);
        require(color && hexText(*color) == hexText(*known.colorWithKey(key)),
                "a colour comes back as it was");
    }
}

} // namespace dropshade
