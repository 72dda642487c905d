// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "ColorListPromises.h"

// Any bytes are a colour list, in a keyed archive or not, or refused.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    dropshade::checkColorList(
        QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)));
    return 0;
}
