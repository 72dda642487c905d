// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "palettes/StatusText.h"

#include <array>

namespace dropshade {

StatusText fittingStatusText(const PaletteSwatch& swatch, double room,
                             const StatusTextMeasure& measure) {
    const QString label = swatch.label().value_or(QString());
    const std::array<StatusText, 3> arrangements{
        StatusText{label, swatch.value()}, StatusText{{}, swatch.value()}, StatusText{label, {}}};
    for (const StatusText& text : arrangements) {
        const double labelWidth = text.label.isEmpty() ? 0.0 : measure.label(text.label);
        const double valueWidth = text.value.isEmpty() ? 0.0 : measure.value(text.value);
        const double gap = labelWidth > 0.0 && valueWidth > 0.0 ? measure.gap : 0.0;
        if (labelWidth + gap + valueWidth <= room)
            return text;
    }
    return {};
}

} // namespace dropshade
