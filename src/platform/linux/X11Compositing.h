// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

namespace dropshade {

/// Whether a compositor shows what lies under translucent windows: on X11 a program that owns the
/// selection which the Extended Window Manager Hints, section "Compositing Managers", set aside for
/// it; any other system of windows does so by itself.
[[nodiscard]] bool windowsAreBlended();

} // namespace dropshade
