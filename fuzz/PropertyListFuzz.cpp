// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "Require.h"

#include "plist/PropertyList.h"

#include <cstddef>
#include <cstdint>

// Any bytes at all are settings or none, and a setting's key is text.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace dropshade;
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    if (const auto settings = propertyListDictionary(bytes)) {
        for (const auto& [key, value] : *settings)
            require(key.isValidUtf16(), "a key is text");
    }
    return 0;
}
