// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace dropshade {

/// What a group of pixels adds up to.
struct PixelTotals {
    std::int64_t red = 0;
    std::int64_t green = 0;
    std::int64_t blue = 0;
    std::int64_t count = 0;

    void add(const PixelTotals& other) {
        red += other.red;
        green += other.green;
        blue += other.blue;
        count += other.count;
    }

    void subtract(const PixelTotals& other) {
        red -= other.red;
        green -= other.green;
        blue -= other.blue;
        count -= other.count;
    }
};

} // namespace dropshade
