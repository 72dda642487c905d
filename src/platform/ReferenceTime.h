// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <compare>

namespace dropshade {

/// A moment as seconds since 2001-01-01T00:00:00Z, kept to the last bit of its double.
struct ReferenceTime {
    double seconds = 0.0;

    friend constexpr auto operator<=>(const ReferenceTime&, const ReferenceTime&) = default;
};

/// Seconds from 1970-01-01T00:00:00Z to the reference moment.
inline constexpr double unixSecondsOfReference = 978307200.0;

} // namespace dropshade
