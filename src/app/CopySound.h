// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QLatin1StringView>

#include <array>

namespace dropshade {

/// The sounds of a copy, in the order in which the settings list them.
inline constexpr std::array<QLatin1StringView, 9> copySounds{
    QLatin1StringView("coin"), QLatin1StringView("collect"), QLatin1StringView("drop"),
    QLatin1StringView("ding"), QLatin1StringView("fart"),    QLatin1StringView("plink"),
    QLatin1StringView("pop"),  QLatin1StringView("retro"),   QLatin1StringView("whoosh"),
};

/// Stands for silence; not a sound.
inline constexpr QLatin1StringView noCopySound("none");
inline constexpr QLatin1StringView defaultCopySound("drop");

} // namespace dropshade
