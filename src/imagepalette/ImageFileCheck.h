// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <span>

namespace dropshade {

enum class ImageFileFormat { png, jpeg, gif, bmp, tiff, webp, heif };

/// The format that the first bytes announce, whatever a file may be called; none for any other.
[[nodiscard]] std::optional<ImageFileFormat> imageFileFormatOf(std::span<const std::uint8_t> file);

/// Whether the file is all there and its structure adds up. The decoders paint what is missing grey
/// or black, and believe every size they read; a palette of that would be wrong, and slow. True
/// where the format's decoder checks for itself (WebP, HEIF).
[[nodiscard]] bool isWholeImageFile(ImageFileFormat format, std::span<const std::uint8_t> file);

// The checks behind it, one for each format.
[[nodiscard]] bool isWholePng(std::span<const std::uint8_t> file);
/// Also false where it would take a decoder more than about 160 MiB of memory, or many passes.
[[nodiscard]] bool isWholeJpeg(std::span<const std::uint8_t> file);
/// Of the first frame only: the others are not looked at.
[[nodiscard]] bool isWholeGif(std::span<const std::uint8_t> file);
[[nodiscard]] bool isWholeBmp(std::span<const std::uint8_t> file);
/// Of the first image only. A classic TIFF; one with 64-bit offsets is not accepted.
[[nodiscard]] bool isWholeTiff(std::span<const std::uint8_t> file);

} // namespace dropshade
