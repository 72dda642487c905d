// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "interchange/ColorList.h"

#include <QByteArray>

namespace dropshade {

/// The colour list in a keyed archive; nothing for any other bytes.
[[nodiscard]] std::optional<ColorList> archivedColorList(const QString& name,
                                                         const QByteArray& bytes);

/// The list as a binary keyed archive, which the desktop that the format comes from opens with
/// every colour as it is: each is there in sRGB, and once more in the generic space, pinned to it,
/// for programs that know no other.
[[nodiscard]] QByteArray archived(const ColorList& list);

} // namespace dropshade
