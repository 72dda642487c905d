// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/ScreenSampler.h"
#include "platform/UserDefaults.h"

namespace dropshade {

/// Samples the screen on behalf of the status item and of the windows.
class ColorPickerService {
public:
    ColorPickerService(ScreenSampler& sampler, const UserDefaults& defaults)
        : m_sampler(sampler), m_defaults(defaults) {}

    /// Lets the user pick a pixel; `completion` gets its colour, or nothing when the user cancels.
    /// The loupe tells each colour in the format of the settings.
    void pickColor(ScreenSampler::Completion completion);

private:
    ScreenSampler& m_sampler;
    const UserDefaults& m_defaults;
};

} // namespace dropshade
