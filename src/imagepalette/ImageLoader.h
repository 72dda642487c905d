// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "imagepalette/PixelBuffer.h"

#include <QByteArray>
#include <QImage>
#include <QSize>
#include <QString>
#include <QStringList>

#include <optional>

namespace dropshade {

/// A decoded image, upright and in sRGB, ready to be shown.
struct LoadedImage {
    /// Reduced where the original's longer side exceeds `ImageLoader::longestSide`.
    QImage image;
    /// What the image was before, upright.
    QSize originalSize;
};

/// Reads images from files that anybody may have made.
///
/// - PNG, JPEG (CMYK too), GIF (the first frame), BMP, TIFF (the first page), WebP and HEIC.
/// - The format is told by the first bytes and not by the name.
/// - An orientation mark is obeyed, an embedded colour profile is converted to sRGB.
/// - A file that is damaged, cut short, larger than `largestFile`, or whose size is out of all
///   proportion to its data, gives no image, within 200 ms and 256 MiB of memory.
/// - No state: any thread may call it.
namespace ImageLoader {

/// In pixels.
inline constexpr int longestSide = 1600;

/// In bytes.
inline constexpr qint64 largestFile = 64 * 1024 * 1024;

/// What files of these formats are usually called: without dots, in lower case. The loader doesn't
/// ask for it.
[[nodiscard]] QStringList fileExtensions();

[[nodiscard]] std::optional<LoadedImage> loadFile(const QString& path);
[[nodiscard]] std::optional<LoadedImage> loadData(const QByteArray& data);

} // namespace ImageLoader

/// The pixels for the quantisers: the image is reduced to `PixelBuffer::longestSide`, never
/// enlarged, and brought to sRGB if it has another colour space. The reduced sides are rounded,
/// halves away from zero, and at least 1. None where the image is null.
[[nodiscard]] std::optional<PixelBuffer> pixelBufferOf(const QImage& image);
/// The same, with the sides worked out from the original's.
[[nodiscard]] std::optional<PixelBuffer> pixelBufferOf(const LoadedImage& image);

} // namespace dropshade
