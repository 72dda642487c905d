// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "interchange/ColorList.h"

#include <QByteArray>

namespace dropshade {

/// Whether these are the bytes of a typed stream, in either order of bytes.
[[nodiscard]] bool isStreamedColorList(const QByteArray& bytes);

/// The colour list in a typed stream, as older programs wrote it; nothing for any other.
[[nodiscard]] std::optional<ColorList> streamedColorList(const QString& name,
                                                         const QByteArray& bytes);

} // namespace dropshade
