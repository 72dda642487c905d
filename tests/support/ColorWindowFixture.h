// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "app/ColorWindowSurroundings.h"
#include "support/CopierFixture.h"
#include "support/FakeAppearance.h"
#include "support/FakeScreenSampler.h"

#include <QCoreApplication>

namespace dropshade {

/// What the convert and contrast windows live in, made of fakes.
struct ColorWindowFixture : CopierFixture {
    FakeAppearance appearance;
    FakeScreenSampler sampler;
    Look look{appearance};
    ColorPickerService service{sampler, defaults};
    ColorWindowSurroundings surroundings{look,      defaults, settings, pasteboard,
                                         scheduler, service,  copier};

    ColorWindowFixture() { appearance.setReducedMotion(true); }

    /// Deletes what is to be deleted later.
    static void deleteDropped() {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
};

} // namespace dropshade
