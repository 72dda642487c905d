// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "imagepalette/ImageQuantizer.h"
#include "imagepalette/KMeansClustering.h"

#include <algorithm>
#include <cassert>
#include <cmath>
#include <vector>

namespace dropshade::ImageQuantizer {

namespace {

constexpr int passLimit = 12;

std::uint8_t byteOf(double mean) {
    return static_cast<std::uint8_t>(std::round(std::clamp(mean, 0.0, 255.0)));
}

} // namespace

std::vector<QuantizedColor> kMeans(std::span<const Pixel> pixels, int k, const RandomBits& random) {
    assert(k >= 1);
    if (pixels.empty())
        return {};
    const ColorTree tree(pixels);
    KMeansClustering clustering(tree, seededCentres(pixels, k, random));
    for (int pass = 0; pass < passLimit; ++pass) {
        if (!clustering.pass())
            break;
    }
    std::vector<QuantizedColor> colors;
    for (std::size_t index = 0; index < clustering.centres().size(); ++index) {
        const Centre& centre = clustering.centres()[index];
        if (const std::int64_t count = clustering.pixelCount(index); count >= 1)
            colors.push_back(
                {byteOf(centre.red), byteOf(centre.green), byteOf(centre.blue), count});
    }
    return colors;
}

} // namespace dropshade::ImageQuantizer
