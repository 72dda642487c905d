// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "imagepalette/ImageQuantizer.h"

#include <span>
#include <vector>

namespace dropshade {

/// A point among the colours, each coordinate 0 to 255.
struct Centre {
    double red = 0.0;
    double green = 0.0;
    double blue = 0.0;

    friend constexpr bool operator==(const Centre&, const Centre&) = default;
};

/// The first centres of K-means: a pixel by chance, then each a pixel drawn with a weight of its
/// squared distance to the nearest centre so far. Fewer than `k` where every pixel coincides with
/// one.
[[nodiscard]] std::vector<Centre> seededCentres(std::span<const Pixel> pixels, int k,
                                                const RandomBits& random);

} // namespace dropshade
