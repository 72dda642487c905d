// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "app/SoundService.h"
#include "color/ColorFormat.h"
#include "platform/Pasteboard.h"
#include "platform/UserDefaults.h"

#include <optional>

namespace dropshade {

/// Puts the text of colours on the clipboard and plays the sound of a copy, by the settings of that
/// moment.
class ColorCopier {
public:
    /// All must outlive this object.
    ColorCopier(UserDefaults& defaults, Pasteboard& pasteboard, SoundService& soundService)
        : m_defaults(defaults), m_pasteboard(pasteboard), m_soundService(soundService) {}

    /// The colour's text in `format`, or else in that of the settings.
    [[nodiscard]] QString text(const SRGBColor& color,
                               std::optional<ColorFormat> format = std::nullopt) const;

    /// Copies the text and plays the sound, and that is all. The result is the text.
    QString copy(const SRGBColor& color, std::optional<ColorFormat> format = std::nullopt);

    /// The same, and counts the copy and remembers the colour among the recent ones, if the
    /// settings want that.
    QString copyAndRecord(const SRGBColor& color, std::optional<ColorFormat> format = std::nullopt);

private:
    UserDefaults& m_defaults;
    Pasteboard& m_pasteboard;
    SoundService& m_soundService;
};

/// Adds one to the lifetime count of sampled and copied colours.
void countCheck(UserDefaults& defaults);

} // namespace dropshade
