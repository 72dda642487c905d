// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "interchange/PaletteJSONCoder.h"

#include "interchange/PrettyJsonWriter.h"
#include "json/JsonDocument.h"

#include <QStringDecoder>

#include <utility>

namespace dropshade {
namespace {

void write(PrettyJsonWriter& json, const PaletteSwatch& swatch) {
    json.beginObject();
    json.key("label");
    json.string(swatch.label().value_or(QString()));
    json.key("value");
    json.string(swatch.value());
    json.endObject();
}

void write(PrettyJsonWriter& json, const PaletteScale& scale) {
    json.beginObject();
    json.key("name");
    json.string(scale.name());
    json.key("swatches");
    json.beginArray();
    for (const PaletteSwatch& swatch : scale.swatches())
        write(json, swatch);
    json.endArray();
    json.endObject();
}

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

DecodedScale readScale(JsonReader& json) {
    std::optional<QString> name;
    std::optional<QList<DecodedSwatch>> swatches;
    json.object([&](std::string_view key) {
        if (key == "name")
            name = json.string();
        else if (key == "swatches")
            json.array([&json, &list = swatches.emplace()] { list.append(readSwatch(json)); });
        else
            json.skip();
    });
    return {required(name), required(swatches)};
}

DecodedPreset readPreset(JsonReader& json) {
    std::optional<QString> name;
    std::optional<QList<DecodedScale>> scales;
    json.object([&](std::string_view key) {
        if (key == "name")
            name = json.string();
        else if (key == "scales")
            json.array([&json, &list = scales.emplace()] { list.append(readScale(json)); });
        else
            json.skip();
    });
    return {required(name), required(scales)};
}

/// Editors on other systems save with a byte order mark or in UTF-16.
QByteArray utf8(const QByteArray& data) {
    const auto encoding = QStringConverter::encodingForData(data, u'{');
    if (!encoding)
        return data;
    if (*encoding == QStringConverter::Utf8)
        return data.mid(qsizetype(sizeof("\xEF\xBB\xBF") - 1));
    QStringDecoder decoder(*encoding, QStringConverter::Flag::Stateless);
    const QString text = decoder.decode(data);
    if (decoder.hasError())
        throw JsonError("not Unicode");
    return text.toUtf8();
}

} // namespace

QByteArray PaletteJSONCoder::encode(const Palette& palette) {
    PrettyJsonWriter json;
    json.beginObject();
    json.key("name");
    json.string(palette.name());
    json.key("scales");
    json.beginArray();
    for (const PaletteScale& scale : palette.scales())
        write(json, scale);
    json.endArray();
    json.endObject();
    return json.text();
}

DecodedPreset PaletteJSONCoder::decode(const QByteArray& data) {
    JsonReader reader(utf8(data));
    DecodedPreset preset = readPreset(reader);
    reader.end();
    return preset;
}

Palette PaletteJSONCoder::makePalette(const DecodedPreset& decoded, ReferenceTime now) {
    QList<PaletteScale> scales;
    scales.reserve(decoded.scales.size());
    for (const DecodedScale& scale : decoded.scales) {
        QList<PaletteSwatch> swatches;
        swatches.reserve(scale.swatches.size());
        for (const DecodedSwatch& swatch : scale.swatches)
            swatches.append(PaletteSwatch(swatch.value, swatch.label));
        scales.append(PaletteScale(scale.name, swatches));
    }
    return Palette(decoded.name, scales, now);
}

} // namespace dropshade
