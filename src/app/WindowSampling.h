// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "app/ColorPickerService.h"
#include "platform/Scheduler.h"
#include "widgets/FloatingWindow.h"

#include <QObject>

#include <functional>
#include <memory>

namespace dropshade {

/// Lets the user sample what lies behind a window: the window goes away, and comes back with the
/// keyboard whether a colour was picked or not.
class WindowSampling : public QObject {
    Q_OBJECT

public:
    /// Both must outlive this object.
    WindowSampling(ColorPickerService& service, Scheduler& scheduler);

    /// `picked` is called only with a colour, before the window is back. Nothing while a sample of
    /// this object is up. The window may be deleted meanwhile.
    void sample(FloatingWindow& window, std::function<void(const SRGBColor&)> picked);

    [[nodiscard]] bool isSampling() const { return m_isSampling; }

private:
    ColorPickerService& m_service;
    Scheduler& m_scheduler;
    std::unique_ptr<ScheduledWork> m_start;
    bool m_isSampling = false;
};

} // namespace dropshade
