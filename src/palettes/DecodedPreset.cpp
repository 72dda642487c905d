// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "palettes/DecodedPreset.h"

#include "json/JsonDocument.h"

#include <utility>

namespace dropshade {
namespace {

DecodedSwatch readSwatch(JsonReader& json) {
    std::optional<QString> value;
    std::optional<QString> label;
    json.object([&](std::string_view key) {
        if (key == "value")
            value = json.string();
        else if (key == "label")
            label = json.null() ? std::nullopt : std::optional(json.string());
        else
            json.skip();
    });
    return {required(value), std::move(label)};
}

/// An object with a name and, under `itemsKey`, a list.
template <typename Item, typename Read>
std::pair<QString, QList<Item>> readNamed(JsonReader& json, std::string_view itemsKey, Read read) {
    std::optional<QString> name;
    std::optional<QList<Item>> items;
    json.object([&](std::string_view key) {
        if (key == "name")
            name = json.string();
        else if (key == itemsKey)
            json.array([&, &list = items.emplace()] { list.append(read(json)); });
        else
            json.skip();
    });
    return {required(name), required(items)};
}

DecodedScale readScale(JsonReader& json) {
    auto [name, swatches] = readNamed<DecodedSwatch>(json, "swatches", readSwatch);
    return {std::move(name), std::move(swatches)};
}

PaletteScale scale(const DecodedScale& decoded) {
    QList<PaletteSwatch> swatches;
    swatches.reserve(decoded.swatches.size());
    for (const DecodedSwatch& swatch : decoded.swatches)
        swatches.append(PaletteSwatch(swatch.value, swatch.label));
    return PaletteScale(decoded.name, swatches);
}

} // namespace

Palette DecodedPreset::palette(ReferenceTime now) const {
    QList<PaletteScale> built;
    built.reserve(scales.size());
    for (const DecodedScale& decoded : scales)
        built.append(scale(decoded));
    return Palette(name, built, now);
}

DecodedPreset readPreset(JsonReader& json) {
    auto [name, scales] = readNamed<DecodedScale>(json, "scales", readScale);
    return {std::move(name), std::move(scales)};
}

} // namespace dropshade
