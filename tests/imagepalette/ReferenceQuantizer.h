// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "imagepalette/ImageQuantizer.h"

#include <span>
#include <vector>

/// The three algorithms once more, written down step by step with no thought of speed: what the
/// shipped ones must equal, colour for colour.
namespace dropshade::ReferenceQuantizer {

std::vector<QuantizedColor> kMeans(std::span<const Pixel> pixels, int k, const RandomBits& random);
std::vector<QuantizedColor> medianCut(std::span<const Pixel> pixels, int k);
std::vector<QuantizedColor> octree(std::span<const Pixel> pixels, int k);

} // namespace dropshade::ReferenceQuantizer
