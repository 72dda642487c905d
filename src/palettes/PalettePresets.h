// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "palettes/Palette.h"
#include "platform/Scheduler.h"

#include <QCoreApplication>

#include <optional>

namespace dropshade {

/// The palettes that come with the program: two from tables, the others from a resource. Each list
/// is built when it is first asked for and then stays. The ids are the presets' own; whoever takes
/// a preset into a store makes a fresh copy.
class PalettePresets {
    Q_DECLARE_TR_FUNCTIONS(PalettePresets)

public:
    /// A resource that is missing or can't be read means no presets from it. `clock` tells when
    /// the presets are built, which is when they count as modified.
    explicit PalettePresets(const Scheduler& clock, const QString& resource = defaultResource());

    /// For the picker: all of them by name, without regard to case.
    [[nodiscard]] const QList<Palette>& all();
    /// For the seed of a new store: Mantine and Open Color, as far as the resource has them, and
    /// Tailwind.
    [[nodiscard]] const QList<Palette>& defaults();

    [[nodiscard]] const Palette& tailwind();
    [[nodiscard]] const Palette& harmony();

    [[nodiscard]] static QString defaultResource();

private:
    [[nodiscard]] const QList<Palette>& loaded();

    const Scheduler& m_clock;
    QString m_resource;
    std::optional<Palette> m_tailwind;
    std::optional<Palette> m_harmony;
    std::optional<QList<Palette>> m_loaded;
    std::optional<QList<Palette>> m_all;
    std::optional<QList<Palette>> m_defaults;
};

} // namespace dropshade
