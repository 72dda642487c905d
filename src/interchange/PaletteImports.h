// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "interchange/PaletteImporter.h"
#include "platform/BackgroundLine.h"
#include "platform/Scheduler.h"

#include <functional>

namespace dropshade {

/// Palettes on their way in. Files are read and decoded beside the main thread, which a large one
/// would hold up for seconds, and one after another, so that palettes come in the order in which
/// the user asked for them.
class PaletteImports {
public:
    struct Landings {
        /// A palette has come, with new ids at all levels.
        std::function<void(const Palette&)> add;
        /// A file is no palette; the text says why, to the user.
        std::function<void(const QString&)> refuse;
    };

    /// All must outlive this object, whose end drops the imports that are on their way.
    PaletteImports(const Scheduler& clock, BackgroundQueue& backgroundQueue, Landings landings)
        : m_clock(clock), m_line(backgroundQueue), m_landings(std::move(landings)) {}

    /// Returns at once; see `PaletteImporter` for what comes of it.
    void importFile(const QString& path);
    void importData(const QByteArray& data, const QString& fileExtension,
                    const std::optional<QString>& suggestedName);

    /// Calls `action` as soon as no import is on its way: at once where none is, and never where
    /// one fails, since the user is to see why. A later call takes the place of an earlier one.
    void whenImported(std::function<void()> action) { m_line.whenEmpty(std::move(action)); }

    /// Has the imports that are on their way land before it returns.
    void finish() { m_line.finish(); }

private:
    void append(std::function<Palette(const PaletteImporter&)> decode);

    const Scheduler& m_clock;
    BackgroundLine m_line;
    Landings m_landings;
};

} // namespace dropshade
