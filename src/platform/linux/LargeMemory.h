// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

namespace dropshade {

/// Makes the C library give every block of a megabyte or more back to the system as soon as it is
/// freed. By itself it comes to keep blocks as large as the largest that it has seen, and so one
/// photograph makes a small program a large one for good. Once, before there are threads.
void giveLargeMemoryBack();

} // namespace dropshade
