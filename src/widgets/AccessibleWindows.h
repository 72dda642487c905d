// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

namespace dropshade {

/// Has screen readers meet windows, sheets, popovers and alerts as what they are. For the
/// constructors of those; as often as one likes.
void installAccessibleWindows();

} // namespace dropshade
