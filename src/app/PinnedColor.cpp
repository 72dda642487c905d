// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "app/PinnedColor.h"

#include "palettes/ColorText.h"
#include "palettes/PaletteSearch.h"
#include "json/JsonDocument.h"

#include <QHash>

#include <utility>

namespace dropshade {
namespace {

PinnedColor readPin(JsonReader& json) {
    PinRecord pin;
    std::optional<QUuid> id, paletteId, scaleId, swatchId;
    std::optional<QString> paletteName, scaleName, value;
    std::optional<double> pinnedAt;
    json.object([&](std::string_view key) {
        if (key == "id")
            id = json.uuid();
        else if (key == "paletteId")
            paletteId = json.uuid();
        else if (key == "paletteName")
            paletteName = json.string();
        else if (key == "scaleId")
            scaleId = json.uuid();
        else if (key == "scaleName")
            scaleName = json.string();
        else if (key == "swatchId")
            swatchId = json.uuid();
        else if (key == "value")
            value = json.string();
        else if (key == "label")
            pin.label = json.null() ? std::nullopt : std::optional(json.string());
        else if (key == "pinnedAt")
            pinnedAt = json.number();
        else
            json.skip();
    });
    return PinnedColor({required(id), required(paletteId), required(paletteName), required(scaleId),
                        required(scaleName), required(swatchId), required(value), pin.label,
                        ReferenceTime{required(pinnedAt)}});
}

void write(JsonWriter& json, const PinnedColor& pin) {
    json.beginObject();
    json.key("id");
    json.uuid(pin->id);
    json.key("paletteId");
    json.uuid(pin->paletteId);
    json.key("paletteName");
    json.string(pin->paletteName);
    json.key("scaleId");
    json.uuid(pin->scaleId);
    json.key("scaleName");
    json.string(pin->scaleName);
    json.key("swatchId");
    json.uuid(pin->swatchId);
    json.key("value");
    json.string(pin->value);
    if (pin->label) {
        json.key("label");
        json.string(*pin->label);
    }
    json.key("pinnedAt");
    json.number(pin->pinnedAt.seconds);
    json.endObject();
}

/// The pin's record as its palette has the swatch now, or nothing where it hasn't.
std::optional<PinRecord> presentRecord(const PinnedColor& pin, const Palette& palette) {
    const auto scale = itemWithId(palette.scales(), pin->scaleId);
    const auto swatch = scale ? itemWithId(scale->swatches(), pin->swatchId) : std::nullopt;
    if (!swatch)
        return std::nullopt;
    PinRecord record = pin.record();
    record.value = swatch->value();
    record.label = swatch->label();
    record.paletteName = palette.name();
    record.scaleName = scale->name();
    return record;
}

} // namespace

PinnedColor::PinnedColor(PinRecord record)
    : m_record(std::move(record)), m_cachedColor(parsedColorOrBlack(m_record.value)) {}

std::optional<QByteArray> encodedPins(const QList<PinnedColor>& pins) {
    return encodedJsonList(pins,
                           [](JsonWriter& json, const PinnedColor& pin) { write(json, pin); });
}

std::optional<QList<PinnedColor>> decodedPins(const QByteArray& json) {
    return decodedJsonList(json, readPin);
}

QList<PinnedColor> validatedPins(const QList<PinnedColor>& pins, const QList<Palette>& palettes) {
    if (pins.isEmpty())
        return pins;
    QHash<QUuid, Palette> paletteOfId;
    for (const Palette& palette : palettes)
        if (!paletteOfId.contains(palette.id()))
            paletteOfId.insert(palette.id(), palette);
    QList<PinnedColor> valid;
    for (const PinnedColor& pin : pins) {
        const auto palette = paletteOfId.constFind(pin->paletteId);
        const auto record =
            palette == paletteOfId.cend() ? std::nullopt : presentRecord(pin, *palette);
        if (record)
            valid.append(*record == pin.record() ? pin : PinnedColor(*record));
    }
    return valid;
}

} // namespace dropshade
