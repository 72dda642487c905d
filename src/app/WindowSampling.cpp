// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "app/WindowSampling.h"

#include <QPointer>

#include <utility>

namespace dropshade {

namespace {

/// The windows beneath need a moment to draw what the window covered, or it is in the picture.
constexpr std::chrono::milliseconds windowFadeDelay{100};

} // namespace

WindowSampling::WindowSampling(ColorPickerService& service, Scheduler& scheduler)
    : m_service(service), m_scheduler(scheduler) {}

void WindowSampling::sample(FloatingWindow& window, std::function<void(const SRGBColor&)> picked) {
    if (m_isSampling)
        return;
    m_isSampling = true;
    window.hide();
    const auto finish = [self = QPointer(this), back = QPointer(&window),
                         picked = std::move(picked)](const std::optional<SRGBColor>& color) {
        if (!self)
            return;
        self->m_isSampling = false;
        if (!back)
            return;
        if (color)
            picked(*color);
        back->present();
    };
    m_start = m_scheduler.after(windowFadeDelay, [this, finish] { m_service.pickColor(finish); });
}

} // namespace dropshade
