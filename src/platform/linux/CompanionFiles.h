// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace dropshade {

/// The path of a part of the program that is loaded or started only when it is needed: beside the
/// executable, as in a build folder, or in ../lib/dropshade from there, where it is installed.
/// Empty when it is at neither place.
[[nodiscard]] QString companionFile(const QString& name);

} // namespace dropshade
