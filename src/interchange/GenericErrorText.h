// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace dropshade {

/// The sentence for an error that has none of its own; it names the error's type.
[[nodiscard]] QString genericErrorText(const char* type);

} // namespace dropshade
