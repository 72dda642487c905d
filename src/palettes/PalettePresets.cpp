// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "palettes/PalettePresets.h"

#include "palettes/PresetShadeTable.h"
#include "json/JsonDocument.h"

#include <QCollator>
#include <QFile>

#include <algorithm>
#include <utility>

namespace dropshade {
namespace {

QString text(std::string_view latin) {
    return QString::fromLatin1(latin.data(), static_cast<qsizetype>(latin.size()));
}

PaletteScale built(const ShadeScale& row) {
    const QString name = text(row.name);
    const QString prefix = name.toLower() + QLatin1Char('-');
    QList<PaletteSwatch> swatches;
    swatches.reserve(shadeCount);
    for (std::size_t index = 0; index < shadeCount; ++index)
        swatches.append(
            PaletteSwatch(text(row.values.at(index)), prefix + text(shadeNames.at(index))));
    return PaletteScale(name, swatches);
}

Palette built(const QString& name, std::span<const ShadeScale> rows, ReferenceTime now) {
    QList<PaletteScale> scales;
    for (const ShadeScale& row : rows)
        scales.append(built(row));
    return Palette(name, scales, now);
}

PaletteSwatch readSwatch(JsonReader& json) {
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
    return PaletteSwatch(required(value), std::move(label));
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

PaletteScale readScale(JsonReader& json) {
    const auto [name, swatches] = readNamed<PaletteSwatch>(json, "swatches", readSwatch);
    return PaletteScale(name, swatches);
}

Palette readPreset(JsonReader& json, ReferenceTime now) {
    const auto [name, scales] = readNamed<PaletteScale>(json, "scales", readScale);
    return Palette(name, scales, now);
}

} // namespace

PalettePresets::PalettePresets(const Scheduler& clock, const QString& resource)
    : m_clock(clock), m_resource(resource) {}

QString PalettePresets::defaultResource() {
    return QStringLiteral(":/presets/PresetPalettes.json");
}

const Palette& PalettePresets::tailwind() {
    if (!m_tailwind)
        m_tailwind =
            built(tr("Tailwind", "Built-in palette name"), tailwindScales(), m_clock.now());
    return *m_tailwind;
}

const Palette& PalettePresets::harmony() {
    if (!m_harmony)
        m_harmony = built(tr("Harmony", "Built-in palette name"), harmonyScales(), m_clock.now());
    return *m_harmony;
}

const QList<Palette>& PalettePresets::loaded() {
    if (!m_loaded) {
        QFile file(m_resource);
        const QByteArray json = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
        m_loaded = decodedJsonList(json, [now = m_clock.now()](JsonReader& reader) {
                       return readPreset(reader, now);
                   }).value_or(QList<Palette>());
    }
    return *m_loaded;
}

const QList<Palette>& PalettePresets::all() {
    if (!m_all) {
        m_all = QList<Palette>{tailwind(), harmony()} + loaded();
        QCollator collator;
        collator.setCaseSensitivity(Qt::CaseInsensitive);
        std::stable_sort(m_all->begin(), m_all->end(),
                         [&collator](const Palette& a, const Palette& b) {
                             return collator.compare(a.name(), b.name()) < 0;
                         });
    }
    return *m_all;
}

const QList<Palette>& PalettePresets::defaults() {
    if (!m_defaults) {
        m_defaults.emplace();
        for (const char16_t* name : {u"Mantine", u"Open Color"}) {
            const QList<Palette>& presets = loaded();
            const auto found =
                std::find_if(presets.begin(), presets.end(), [name](const Palette& preset) {
                    return preset.name() == QStringView(name);
                });
            if (found != presets.end())
                m_defaults->append(*found);
        }
        m_defaults->append(tailwind());
    }
    return *m_defaults;
}

} // namespace dropshade
