// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <libheif/heif.h>

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

using HeifContext = HeifPointer<heif_context, heif_context_free>;
using HeifColorProfile = HeifPointer<heif_color_profile_nclx, heif_nclx_color_profile_free>;

} // namespace dropshade
