// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "Require.h"

#include "palettes/PaletteJson.h"

#include <cstddef>
#include <cstdint>

// Any bytes at all are palettes or none; what was read is written and read again the same.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace dropshade;
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const ReferenceTime now{800'000'000.25};
    const auto palettes = decodedPalettes(bytes, now);
    if (!palettes)
        return 0;
    const auto written = encodedPalettes(*palettes);
    if (!written)
        return 0;
    const auto again = decodedPalettes(*written, now);
    require(again.has_value(), "what is written can be read");
    require(encodedPalettes(*again) == written, "nothing is lost on the way");
    return 0;
}
