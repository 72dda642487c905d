// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "Require.h"

#include "interchange/ASECoder.h"

#include <cstddef>
#include <cstdint>
#include <optional>

namespace dropshade {
namespace {

std::optional<Palette> decoded(const QByteArray& bytes) {
    try {
        return ASECoder::decode(bytes, ReferenceTime{});
    } catch (const ASECoderError&) {
        return std::nullopt;
    }
}

void checkSwatch(const PaletteSwatch& swatch, const PaletteSwatch& copy) {
    require(swatch.value().size() == 7, "a value is a hex text");
    require(!swatch.label() || !swatch.label()->isEmpty(), "an empty name is no label");
    require(copy.value() == swatch.value(), "a colour comes back as it was");
    const QString name = swatch.label().value_or(swatch.value());
    // A name that was cut may end in white space, which the next reading takes off.
    require(copy.label() == name.trimmed(), "a name comes back");
}

} // namespace
} // namespace dropshade

// Any bytes are a palette or refused, and what was read is written and read without loss.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace dropshade;
    const auto palette =
        decoded(QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)));
    if (!palette)
        return 0;
    const QByteArray written = ASECoder::encode(*palette);
    const auto copy = decoded(written);
    require(copy.has_value(), "what is written can be read");
    require(copy->scales().size() == palette->scales().size(), "no scale is lost");
    for (qsizetype at = 0; at < copy->scales().size(); ++at) {
        const PaletteScale& scale = palette->scales().at(at);
        const PaletteScale& scaleCopy = copy->scales().at(at);
        require(scaleCopy.name() == scale.name().trimmed(), "a scale's name comes back");
        require(scaleCopy.swatches().size() == scale.swatches().size(), "no swatch is lost");
        for (qsizetype place = 0; place < scale.swatches().size(); ++place)
            checkSwatch(scale.swatches().at(place), scaleCopy.swatches().at(place));
    }
    return 0;
}
