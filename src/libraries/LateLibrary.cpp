// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "libraries/LateLibrary.h"

namespace dropshade {

QFunctionPointer LateLibrary::address(const char* symbol) {
    const QFunctionPointer found = m_library.resolve(symbol);
    m_isWhole = m_isWhole && found != nullptr;
    return found;
}

} // namespace dropshade
