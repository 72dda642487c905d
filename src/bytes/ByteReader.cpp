// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "bytes/ByteReader.h"

#include <bit>
#include <limits>

namespace dropshade {

static_assert(std::numeric_limits<float>::is_iec559);

std::span<const std::uint8_t> ByteReader::take(std::uint64_t count) {
    const std::size_t start = m_position;
    skip(count);
    return m_failed ? std::span<const std::uint8_t>() : m_bytes.subspan(start, std::size_t(count));
}

float ByteReader::f32() {
    const std::uint32_t bits = u32();
    return m_failed ? 0.0F : std::bit_cast<float>(bits);
}

} // namespace dropshade
