// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "palettes/Palette.h"

#include <cstdint>
#include <initializer_list>
#include <random>

namespace dropshade {

inline PaletteScale makeScale(const char* name, std::initializer_list<const char*> values) {
    QList<PaletteSwatch> swatches;
    for (const char* value : values)
        swatches.append(PaletteSwatch(QString::fromUtf8(value)));
    return PaletteScale(QString::fromUtf8(name), swatches);
}

inline Palette makePalette(const char* name, const QList<PaletteScale>& scales = {},
                           ReferenceTime lastModified = ReferenceTime{700000000.5}) {
    return Palette(QString::fromUtf8(name), scales, lastModified);
}

/// Alike in every stored field, at all levels.
inline bool isSame(const PaletteSwatch& a, const PaletteSwatch& b) {
    return a.id() == b.id() && a.value() == b.value() && a.label() == b.label();
}

template <typename Item>
bool areSame(const QList<Item>& a, const QList<Item>& b) {
    bool same = a.size() == b.size();
    for (qsizetype index = 0; same && index < a.size(); ++index)
        same = isSame(a.at(index), b.at(index));
    return same;
}

inline bool isSame(const PaletteScale& a, const PaletteScale& b) {
    return a.id() == b.id() && a.name() == b.name() && areSame(a.swatches(), b.swatches());
}

inline bool isSame(const Palette& a, const Palette& b) {
    return a.id() == b.id() && a.name() == b.name() && a.lastModified() == b.lastModified() &&
           areSame(a.scales(), b.scales());
}

/// Libraries that differ from seed to seed, with odd names, values that are no colours, empty
/// lists, absent and empty labels and moments that use every bit.
class RandomPalettes {
public:
    explicit RandomPalettes(std::uint64_t seed) : m_random(seed) {}

    [[nodiscard]] unsigned below(unsigned end) { return unsigned(m_random() % end); }

    [[nodiscard]] QString text() {
        static const QStringList parts = {
            QStringLiteral("Red"),  QStringLiteral("\""),       QStringLiteral("\\"),
            QStringLiteral("\n"),   QStringLiteral(u"色"),      QStringLiteral(u"🎨"),
            QStringLiteral(" "),    QString(QChar(u'\0')),      QStringLiteral("#ff0000"),
            QStringLiteral("</a>"), QStringLiteral(u"e\u0301"), QStringLiteral("\u2028"),
        };
        QString text;
        for (unsigned count = below(4); count > 0; --count)
            text += parts.at(below(unsigned(parts.size())));
        return text;
    }

    [[nodiscard]] PaletteSwatch swatch() {
        const QString value =
            below(4) == 0 ? text()
                          : QStringLiteral("#%1").arg(below(0x1000000), 6, 16, QLatin1Char('0'));
        return below(2) == 0 ? PaletteSwatch(value) : PaletteSwatch(value, text());
    }

    [[nodiscard]] PaletteScale scale() {
        QList<PaletteSwatch> swatches;
        for (unsigned count = below(12); count > 0; --count)
            swatches.append(swatch());
        return PaletteScale(text(), swatches);
    }

    [[nodiscard]] Palette palette() {
        QList<PaletteScale> scales;
        for (unsigned count = below(5); count > 0; --count)
            scales.append(scale());
        std::uniform_real_distribution<double> seconds(-1e9, 1e9);
        return Palette(text(), scales, ReferenceTime{seconds(m_random)});
    }

    [[nodiscard]] QList<Palette> palettes() {
        QList<Palette> palettes;
        for (unsigned count = below(5); count > 0; --count)
            palettes.append(palette());
        return palettes;
    }

private:
    std::mt19937_64 m_random;
};

} // namespace dropshade
