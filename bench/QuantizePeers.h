// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "imagepalette/ImageQuantizer.h"

#include <functional>
#include <string>
#include <vector>

namespace dropshade::bench {

/// Packed rows of pixels.
struct Sample {
    std::string name;
    int width = 0;
    int height = 0;
    std::vector<Pixel> pixels;
};

/// What one quantiser made of a sample, and what each run of it cost, in milliseconds
/// of processor time, all threads together: a busy machine counts for little then.
struct Outcome {
    std::string quantizer;
    std::vector<double> times;
    std::vector<Pixel> palette;
};

/// Runs `run` `runs` times.
Outcome timed(const std::string& quantizer, int runs,
              const std::function<std::vector<Pixel>()>& run);

Outcome byImagequant(const Sample& sample, int k, int runs);
Outcome byMagick(const Sample& sample, int k, int runs);

/// All of Pillow's; none where there is no Python with Pillow.
std::vector<Outcome> byPillow(const Sample& sample, int k, int runs);

} // namespace dropshade::bench
