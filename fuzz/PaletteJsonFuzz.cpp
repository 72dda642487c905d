// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "Require.h"

#include "interchange/PaletteJSONCoder.h"

#include <cstddef>
#include <cstdint>
#include <optional>

namespace dropshade {
namespace {

std::optional<DecodedPreset> decoded(const QByteArray& bytes) {
    try {
        return PaletteJSONCoder::decode(bytes);
    } catch (const JsonError&) {
        return std::nullopt;
    }
}

} // namespace
} // namespace dropshade

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace dropshade;
    const auto preset =
        decoded(QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)));
    if (!preset)
        return 0;
    const Palette palette = PaletteJSONCoder::makePalette(*preset, ReferenceTime{});
    require(palette.scales().size() == preset->scales.size(), "no scale is lost");
    const QByteArray json = PaletteJSONCoder::encode(palette);
    require(json.isValidUtf8(), "what is written is UTF-8");
    const auto again = decoded(json);
    require(again.has_value(), "what is written can be read");
    const Palette copy = PaletteJSONCoder::makePalette(*again, ReferenceTime{});
    require(PaletteJSONCoder::encode(copy) == json, "what is written reads back");
    require(copy.name() == palette.name(), "a name comes back as it was");
    return 0;
}
