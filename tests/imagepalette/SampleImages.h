// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "imagepalette/ImageQuantizer.h"

#include <random>
#include <vector>

namespace dropshade::SampleImages {

/// The draws of a generator with a known seed.
RandomBits seededBits(std::uint64_t seed);

/// An image of 1 to `most` pixels of a random kind: noise, a few colours, near-equal colours, a
/// gradient, greys, one colour, or a scene of soft blobs.
std::vector<Pixel> randomImage(std::mt19937_64& generator, std::size_t most);

/// `count` pixels of independent uniform channels.
std::vector<Pixel> noise(std::mt19937_64& generator, std::size_t count);

/// `width` × `height` pixels of soft blobs of colour with a little grain, rather like a photograph.
std::vector<Pixel> scene(std::mt19937_64& generator, int width, int height);

} // namespace dropshade::SampleImages
