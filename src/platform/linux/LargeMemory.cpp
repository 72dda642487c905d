// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/linux/LargeMemory.h"

#include <malloc.h>

namespace dropshade {

void giveLargeMemoryBack() {
#ifdef __GLIBC__
    constexpr int largeBlock = 1024 * 1024;
    mallopt(M_MMAP_THRESHOLD, largeBlock);
#endif
}

} // namespace dropshade
