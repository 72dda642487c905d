// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

namespace dropshade {

template <auto release>
struct HeifReleaser {
    template <typename T>
    void operator()(T* pointer) const {
        release(pointer);
    }
};

/// Owns one of libheif's objects and gives it back with its own function.
template <typename T, auto release>
using HeifPointer = std::unique_ptr<T, HeifReleaser<release>>;

} // namespace dropshade
