// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/ScreenSampler.h"
#include "widgets/Theme.h"

#include <memory>

namespace dropshade {

class X11Loupe;

/// Samples with a loupe of our own over a picture of all screens.
class X11ScreenSampler : public ScreenSampler {
public:
    /// `theme` is asked at the start of each sample.
    explicit X11ScreenSampler(std::function<Theme()> theme);
    ~X11ScreenSampler() override;

    void sample(Describe describe, Completion completion) override;

private:
    void complete(const std::optional<SRGBColor>& color);
    void retire(X11Loupe* loupe);

    std::function<Theme()> m_theme;
    Completion m_completion;
    std::unique_ptr<X11Loupe> m_loupe;
};

} // namespace dropshade
