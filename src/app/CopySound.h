// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <string_view>

namespace dropshade {

/// The names of the copy sounds, in the order in which a picker offers them.
inline constexpr std::array<std::string_view, 9> copySounds = {
    "coin", "collect", "drop", "ding", "fart", "plink", "pop", "retro", "whoosh",
};

/// The setting's word for silence, which is no sound.
inline constexpr std::string_view noCopySound = "none";

inline constexpr std::string_view defaultCopySound = "drop";

} // namespace dropshade
