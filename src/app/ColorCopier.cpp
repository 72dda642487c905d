// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "app/ColorCopier.h"

#include "app/RecentColor.h"
#include "app/SettingsReaders.h"

#include <algorithm>
#include <limits>

namespace dropshade {

void countCheck(UserDefaults& defaults) {
    defaults.amend(keys::totalChecksCount, [](const std::optional<DefaultsValue>& stored) {
        const qint64* count = stored ? std::get_if<qint64>(&*stored) : nullptr;
        // A file, or another machine, may hold the largest number.
        constexpr qint64 most = std::numeric_limits<qint64>::max();
        return DefaultsValue(std::min(count ? *count : 0, most - 1) + 1);
    });
}

QString ColorCopier::text(const SRGBColor& color, std::optional<ColorFormat> format) const {
    return QString::fromStdString(
        formatted(color, format.value_or(colorFormat(m_defaults)), formatOptions(m_defaults)));
}

QString ColorCopier::copy(const SRGBColor& color, std::optional<ColorFormat> format) {
    const QString copied = text(color, format);
    m_pasteboard.setText(copied);
    m_soundService.play();
    return copied;
}

QString ColorCopier::copyAndRecord(const SRGBColor& color, std::optional<ColorFormat> format) {
    countCheck(m_defaults);
    const QString copied = text(color, format);
    m_pasteboard.setText(copied);
    if (showRecentColors(m_defaults) && recentColorsLimit(m_defaults) >= 1)
        recordRecentColor(m_defaults, color);
    m_soundService.play();
    return copied;
}

} // namespace dropshade
