// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "palettes/UserPaletteStore.h"
#include "support/ManualScheduler.h"
#include "support/MemoryDefaults.h"

#include <memory>

namespace dropshade {

/// Everything that one machine remembers, on defaults and a clock of its own.
class Machine {
public:
    explicit Machine(const QString& presets = PalettePresets::defaultResource())
        : m_presets(m_scheduler, presets) {}

    MemoryDefaults& defaults() { return m_defaults; }
    ManualScheduler& scheduler() { return m_scheduler; }

    /// Made when they are first asked for.
    AppSettings& settings() {
        if (!m_settings)
            m_settings = std::make_unique<AppSettings>(m_defaults, m_scheduler);
        return *m_settings;
    }
    UserPaletteStore& store() {
        if (!m_store)
            m_store =
                std::make_unique<UserPaletteStore>(m_defaults, m_scheduler, settings(), m_presets);
        return *m_store;
    }

    /// The program ends without a word; the defaults stay.
    void kill() {
        m_store.reset();
        m_settings.reset();
    }

private:
    MemoryDefaults m_defaults;
    ManualScheduler m_scheduler;
    PalettePresets m_presets;
    std::unique_ptr<AppSettings> m_settings;
    std::unique_ptr<UserPaletteStore> m_store;
};

} // namespace dropshade
