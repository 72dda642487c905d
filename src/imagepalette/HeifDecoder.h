// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QImage>

#include <optional>

namespace dropshade {

/// The primary image of a HEIF file, turned the way the file says, with the colour space that it
/// names (its ICC profile, or else its coded primaries and transfer curve). None where the file is
/// damaged, its announced size proves wrong, or there is no decoder for what is in it.
///
/// Does whatever work the file asks for: ask `heifDecodingPixels` first.
[[nodiscard]] std::optional<QImage> decodeHeif(const QByteArray& data);

} // namespace dropshade
