// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "color/SRGBColor.h"

#include <QString>

#include <functional>
#include <optional>

namespace dropshade {

/// Lets the user point at one pixel of the screen.
class ScreenSampler {
public:
    /// The text that the loupe shows beside a colour.
    using Describe = std::function<QString(const SRGBColor&)>;
    using Completion = std::function<void(std::optional<SRGBColor>)>;

    virtual ~ScreenSampler() = default;

    /// Starts a sample and returns; `completion` is called once, later, with the colour that the
    /// user picked, or with nothing when the user cancelled or the screen can't be read. There is
    /// no time-out. While a sample is up, another call completes with nothing.
    virtual void sample(Describe describe, Completion completion) = 0;
};

} // namespace dropshade
