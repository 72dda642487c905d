// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "app/AppSettings.h"
#include "app/ColorCopier.h"
#include "support/FakePasteboard.h"
#include "support/FakeSoundPlayer.h"
#include "support/ManualScheduler.h"
#include "support/MemoryDefaults.h"

namespace dropshade {

/// Everything that a copy goes through.
struct CopierFixture {
    MemoryDefaults defaults;
    ManualScheduler scheduler;
    FakePasteboard pasteboard;
    FakeSoundPlayer soundPlayer;
    SoundService soundService{defaults, soundPlayer};
    AppSettings settings{defaults, scheduler};
    ColorCopier copier{defaults, pasteboard, soundService};

    [[nodiscard]] qint64 checks() const {
        return defaults.read<qint64>(QStringLiteral("totalChecksCount")).value_or(0);
    }
};

} // namespace dropshade
