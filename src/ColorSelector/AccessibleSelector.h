// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

namespace dropshade {

/// Makes screen readers meet every `Selector` as a slider with a value. Once in a process; more
/// calls change nothing.
void installAccessibleSelectors();

} // namespace dropshade
