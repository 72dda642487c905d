// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <span>

namespace dropshade {

/// What a container of characters holds, as bytes, where they lie.
template <typename Characters>
[[nodiscard]] std::span<const std::uint8_t> bytesOf(const Characters& characters) {
    static_assert(sizeof(*std::data(characters)) == 1);
    return {reinterpret_cast<const std::uint8_t*>(std::data(characters)),
            static_cast<std::size_t>(std::size(characters))};
}

} // namespace dropshade
