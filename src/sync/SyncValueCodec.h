// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <optional>

namespace dropshade {

// How JSON text lies in the cloud: as it is, or as a frame, which is the byte 0x01 and a raw
// DEFLATE stream (RFC 1951). Text in JSON never begins with that byte.

/// The frame of `plain`, or `plain` itself where the stream would be more than 64 bytes longer.
[[nodiscard]] QByteArray compressedValue(const QByteArray& plain);

/// The text in a frame; anything else is its own text, also a lone 0x01. Nothing where a frame is
/// damaged or cut off, holds no byte at all, or holds more than a fair one does: 512 bytes for
/// each of its own, and 65,536 at least, less one.
[[nodiscard]] std::optional<QByteArray> decompressedValue(const QByteArray& stored);

/// What a machine gives to the others for `plain`: its frame, or `plain` itself where that is so
/// monotonous that nobody would take the frame for a fair one.
[[nodiscard]] QByteArray sharedValue(const QByteArray& plain);

} // namespace dropshade
