// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <span>

namespace dropshade {

/// The work of decoding the primary image of a HEIF file, in pixels: those of every coded picture
/// that is decoded for it and of every canvas that they are put together on, as often as each is
/// used. Taken from where the decoder takes them, the coded pictures' own headers too, since the
/// sizes that a file announces need not be those. A file of a few hundred bytes can ask for
/// gigabytes.
///
/// None where the file is cut short or ambiguous, or holds what no HEIC file of a camera or an
/// editor does: other codecs than HEVC, headers in the midst of the coded data, more than one
/// picture in an item.
[[nodiscard]] std::optional<std::uint64_t> heifDecodingPixels(std::span<const std::uint8_t> file);

} // namespace dropshade
