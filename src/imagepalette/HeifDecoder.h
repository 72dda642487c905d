// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QImage>
#include <QSize>

#include <functional>
#include <optional>

namespace dropshade {

/// The primary image of a HEIF file, turned the way the file says, with the colour space that it
/// names (its ICC profile, or else its coded primaries and transfer curve). `accepts` is asked
/// about the announced size before anything is decoded. None where the file is damaged, the size is
/// refused or proves wrong, or there is no decoder for what is in it.
[[nodiscard]] std::optional<QImage> decodeHeif(const QByteArray& data,
                                               const std::function<bool(QSize)>& accepts);

} // namespace dropshade
