// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QImage>

#include <functional>

namespace dropshade::SampleFiles {

/// Width × height of smooth colour, opaque.
QImage picture(int width, int height);

/// An image in one of Qt's writable formats.
QByteArray encoded(const QImage& image, const char* format, int quality = -1);

/// A JPEG with an EXIF block that holds an orientation, 1 to 8.
QByteArray jpegWithOrientation(const QImage& image, int orientation);

/// A JPEG of one solid colour in Adobe's CMYK, whose channels are stored upside down: 255 is no
/// ink.
QByteArray cmykJpeg(int cyan, int magenta, int yellow, int black);

/// A GIF of one frame in the two colours given, the first for even pixels, the second for odd ones.
QByteArray gif(int width, int height, QRgb even, QRgb odd);

/// A BMP of 8-bit runs: each row in one colour of a palette of greys, row y in grey 10 × y.
QByteArray runLengthBmp(int width, int height);

/// A little-endian TIFF of uncompressed 8-bit RGB with its directory before its pixels.
QByteArray tiff(int width, int height, QRgb color);

/// How a HEIC file comes to be; see `heic`.
struct HeicOptions {
    int rotateDegrees = 0;
    QByteArray iccProfile;
    /// ITU-T H.273 code point of the primaries; 0 for none.
    int primaries = 0;
};

/// A HEIC file by the system's encoder; empty where there is none.
QByteArray heic(const QImage& image, const HeicOptions& options = {});

/// Overwrites the bytes from `offset` on.
QByteArray patched(QByteArray file, qsizetype offset, const QByteArray& bytes);

} // namespace dropshade::SampleFiles
