// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "interchange/PaletteJSONCoder.h"

#include "interchange/PrettyJsonWriter.h"

#include <QStringDecoder>

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
    return decoded.palette(now);
}

} // namespace dropshade
