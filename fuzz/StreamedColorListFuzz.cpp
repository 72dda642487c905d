// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "ColorListPromises.h"

// Any bytes behind the front of a typed stream, in the order that the first one chooses, are a
// colour list or refused.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0)
        return 0;
    const QByteArray front =
        QByteArray("\x04\x0b") + ((data[0] & 1U) != 0 ? "typedstream" : "streamtyped");
    dropshade::checkColorList(front + QByteArray(reinterpret_cast<const char*>(data) + 1,
                                                 static_cast<qsizetype>(size) - 1));
    return 0;
}
