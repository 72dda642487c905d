// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "app/ColorPickerService.h"

#include "app/SettingsReaders.h"

#include <utility>

namespace dropshade {

void ColorPickerService::pickColor(ScreenSampler::Completion completion) {
    // Read once for each sample: the settings do not change under the loupe, and it draws often.
    const auto describe = [format = colorFormat(m_defaults),
                           options = formatOptions(m_defaults)](const SRGBColor& color) {
        return QString::fromStdString(formatted(color, format, options));
    };
    m_sampler.sample(describe, std::move(completion));
}

} // namespace dropshade
