// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <span>

namespace dropshade {

// Just enough of HEVC (ITU-T H.265) to know how large a picture is before it is decoded. A unit is
// a NAL unit, section 7.3.1, its two header bytes first.

/// Whether the unit is a sequence parameter set, which is what says how large the pictures are.
[[nodiscard]] bool isHevcSequenceHeader(std::span<const std::uint8_t> unit);

/// Whether a new picture starts with this unit.
[[nodiscard]] bool startsHevcPicture(std::span<const std::uint8_t> unit);

/// The pixels of a picture by a sequence parameter set; none where that is cut short.
[[nodiscard]] std::optional<std::uint64_t>
hevcPicturePixels(std::span<const std::uint8_t> sequenceHeader);

} // namespace dropshade
