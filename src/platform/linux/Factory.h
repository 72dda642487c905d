// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Platform.h"

namespace dropshade {

/// The adapters that fit the desktop the program runs on, all but the alerts and panels, which
/// look like the program's windows. Needs the `QApplication`.
[[nodiscard]] Platform makePlatform();

} // namespace dropshade
