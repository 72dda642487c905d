// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "palettes/PaletteJson.h"

#include "json/JsonDocument.h"

namespace dropshade {
namespace {

/// About what a labelled swatch takes, so that the text of a library is not moved while it grows.
constexpr qsizetype bytesPerSwatch = 96;
constexpr qsizetype bytesPerScale = 96;

void write(JsonWriter& json, const PaletteSwatch& swatch) {
    json.beginObject();
    json.key("id");
    json.uuid(swatch.id());
    json.key("value");
    json.string(swatch.value());
    if (swatch.label()) {
        json.key("label");
        json.string(*swatch.label());
    }
    json.endObject();
}

void write(JsonWriter& json, const PaletteScale& scale) {
    json.beginObject();
    json.key("id");
    json.uuid(scale.id());
    json.key("name");
    json.string(scale.name());
    json.key("swatches");
    json.beginArray();
    for (const PaletteSwatch& swatch : scale.swatches())
        write(json, swatch);
    json.endArray();
    json.endObject();
}

void write(JsonWriter& json, const Palette& palette) {
    json.beginObject();
    json.key("id");
    json.uuid(palette.id());
    json.key("name");
    json.string(palette.name());
    json.key("lastModified");
    json.number(palette.lastModified().seconds);
    json.key("scales");
    json.beginArray();
    for (const PaletteScale& scale : palette.scales())
        write(json, scale);
    json.endArray();
    json.endObject();
}

qsizetype expectedSize(const Palette& palette) {
    qsizetype size = bytesPerScale;
    for (const PaletteScale& scale : palette.scales())
        size += bytesPerScale + bytesPerSwatch * scale.swatches().size();
    return size;
}

PaletteSwatch readSwatch(JsonReader& json) {
    std::optional<QUuid> id;
    std::optional<QString> value;
    std::optional<QString> label;
    json.object([&](std::string_view key) {
        if (key == "id")
            id = json.uuid();
        else if (key == "value")
            value = json.string();
        else if (key == "label")
            label = json.null() ? std::nullopt : std::optional(json.string());
        else
            json.skip();
    });
    return PaletteSwatch(required(id), required(std::move(value)), std::move(label));
}

PaletteScale readScale(JsonReader& json) {
    std::optional<QUuid> id;
    std::optional<QString> name;
    std::optional<QList<PaletteSwatch>> swatches;
    json.object([&](std::string_view key) {
        if (key == "id")
            id = json.uuid();
        else if (key == "name")
            name = json.string();
        else if (key == "swatches")
            json.array([&json, &list = swatches.emplace()] { list.append(readSwatch(json)); });
        else
            json.skip();
    });
    return PaletteScale(required(id), required(name), required(swatches));
}

Palette readPalette(JsonReader& json, ReferenceTime now) {
    std::optional<QUuid> id;
    std::optional<QString> name;
    std::optional<QList<PaletteScale>> scales;
    ReferenceTime lastModified = now;
    json.object([&](std::string_view key) {
        if (key == "id")
            id = json.null() ? std::nullopt : std::optional(json.uuid());
        else if (key == "name")
            name = json.string();
        else if (key == "scales")
            json.array([&json, &list = scales.emplace()] { list.append(readScale(json)); });
        else if (key == "lastModified")
            lastModified = json.null() ? now : ReferenceTime{json.number()};
        else
            json.skip();
    });
    return Palette(id ? *id : QUuid::createUuid(), required(name), required(scales), lastModified);
}

QList<Palette> readPalettes(JsonReader& json, ReferenceTime now) {
    QList<Palette> palettes;
    json.array([&] { palettes.append(readPalette(json, now)); });
    return palettes;
}

} // namespace

std::optional<QByteArray> encodedPalette(const Palette& palette) {
    return encodedJson([&palette](JsonWriter& json) {
        json.reserve(expectedSize(palette));
        write(json, palette);
    });
}

std::optional<QByteArray> encodedPalettes(const QList<Palette>& palettes) {
    return encodedJson([&palettes](JsonWriter& json) {
        qsizetype size = 2;
        for (const Palette& palette : palettes)
            size += expectedSize(palette);
        json.reserve(size);
        json.beginArray();
        for (const Palette& palette : palettes)
            write(json, palette);
        json.endArray();
    });
}

std::optional<Palette> decodedPalette(const QByteArray& json, ReferenceTime now) {
    return decodedJson(json, [now](JsonReader& reader) { return readPalette(reader, now); });
}

std::optional<QList<Palette>> decodedPalettes(const QByteArray& json, ReferenceTime now) {
    return decodedJson(json, [now](JsonReader& reader) { return readPalettes(reader, now); });
}

} // namespace dropshade
