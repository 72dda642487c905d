// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "interchange/CLRCoder.h"

#include "interchange/HexText.h"
#include "interchange/ImportedNames.h"
#include "interchange/UniqueNames.h"

#include <algorithm>
#include <vector>

namespace dropshade {
namespace {

/// Between the scale and the label in a key.
const QLatin1String separator(" / ");

/// From this share of keys of that form on, a list is read as one of scales: six of ten.
constexpr qsizetype groupedNumerator = 3;
constexpr qsizetype groupedDenominator = 5;

bool isStructured(const QString& key) {
    return key.contains(separator);
}

bool isGrouped(const QList<QString>& keys) {
    const auto structured = std::count_if(keys.begin(), keys.end(), isStructured);
    return structured * groupedDenominator >= keys.size() * groupedNumerator;
}

/// Scales in the making, in the order of their first key.
class Scales {
public:
    QList<PaletteSwatch>& swatchesOf(const QString& name) {
        const auto place = m_places.constFind(name);
        if (place != m_places.constEnd())
            return m_scales[*place].swatches;
        m_places.insert(name, m_scales.size());
        m_scales.push_back({name, {}});
        return m_scales.back().swatches;
    }

    [[nodiscard]] QList<PaletteScale> all() const {
        QList<PaletteScale> scales;
        scales.reserve(qsizetype(m_scales.size()));
        for (const Scale& scale : m_scales)
            scales.append(PaletteScale(scale.name, scale.swatches));
        return scales;
    }

private:
    struct Scale {
        QString name;
        QList<PaletteSwatch> swatches;
    };

    QHash<QString, std::size_t> m_places;
    std::vector<Scale> m_scales;
};

} // namespace

Palette CLRCoder::decode(const QByteArray& data, ReferenceTime now) {
    const auto list = ColorList::read(QString(), data);
    if (!list)
        throw CLRCoderError();
    return paletteOf(*list, now);
}

Palette CLRCoder::paletteOf(const ColorList& list, ReferenceTime now) {
    const QList<QString>& keys = list.allKeys();
    const bool isOfScales = isGrouped(keys);
    Scales scales;
    for (qsizetype place = 0; place < keys.size(); ++place) {
        const QString& key = keys.at(place);
        const qsizetype end = isOfScales ? key.indexOf(separator) : -1;
        const QString label = end < 0 ? key : key.mid(end + separator.size());
        auto& swatches =
            scales.swatchesOf(end < 0 ? ImportedNames::scaleOfLooseColors() : key.first(end));
        const auto& color = list.allColors().at(place);
        // The scale stays, if empty.
        if (color)
            swatches.append(PaletteSwatch(hexText(*color), label.isEmpty() && isOfScales
                                                               ? std::nullopt
                                                               : std::optional(label)));
    }
    return Palette(list.name().isEmpty() ? ImportedNames::palette() : list.name(), scales.all(),
                   now);
}

QByteArray CLRCoder::encode(const Palette& palette) {
    return listOf(palette).bytes();
}

ColorList CLRCoder::listOf(const Palette& palette) {
    ColorList list(palette.name().isEmpty() ? ImportedNames::palette() : palette.name());
    UniqueNames keys([](const QString& key, qsizetype number) {
        return key + QStringLiteral(" (%1)").arg(number);
    });
    for (const PaletteScale& scale : palette.scales()) {
        for (const PaletteSwatch& swatch : scale.swatches()) {
            const QString label = swatch.label().value_or(QString()).trimmed();
            const QString key =
                scale.name() + separator + (label.isEmpty() ? swatch.value() : label);
            list.setColor(swatch.color(), keys.take(key));
        }
    }
    return list;
}

} // namespace dropshade
