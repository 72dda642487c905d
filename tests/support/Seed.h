// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <cstdlib>
#include <random>
#include <string>

namespace dropshade {

/// The seed of a random test: a new one in each run, or that in DROPSHADE_TEST_SEED. A test shows
/// it on failure: `SCOPED_TRACE(seedTrace(seed))`.
inline std::uint64_t testSeed() {
    if (const char* const fixed = std::getenv("DROPSHADE_TEST_SEED"))
        return std::strtoull(fixed, nullptr, 10);
    std::random_device device;
    return std::uint64_t{device()} << 32 | device();
}

inline std::string seedTrace(std::uint64_t seed) {
    return "to repeat this: DROPSHADE_TEST_SEED=" + std::to_string(seed);
}

} // namespace dropshade
