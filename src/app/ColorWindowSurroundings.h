// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "app/AppSettings.h"
#include "app/ColorCopier.h"
#include "app/ColorPickerService.h"
#include "platform/Pasteboard.h"
#include "platform/Scheduler.h"
#include "widgets/Look.h"

namespace dropshade {

/// What the convert and contrast windows need of the program. All of it outlives them.
struct ColorWindowSurroundings {
    const Look& look;
    UserDefaults& defaults;
    AppSettings& settings;
    Pasteboard& pasteboard;
    Scheduler& scheduler;
    ColorPickerService& colorPickerService;
    ColorCopier& copier;
};

} // namespace dropshade
