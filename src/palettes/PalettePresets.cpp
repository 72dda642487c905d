// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "palettes/PalettePresets.h"

#include "palettes/DecodedPreset.h"
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
                       return readPreset(reader).palette(now);
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
