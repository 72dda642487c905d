// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "app/MenuColors.h"

#include "app/SettingsReaders.h"
#include "palettes/PaletteSearch.h"

#include <QHash>
#include <QTextBoundaryFinder>

#include <algorithm>
#include <limits>
#include <tuple>

namespace dropshade {

namespace {

constexpr int longestTitle = 48;
constexpr int decimalPlacesOfRecents = 2;
/// The place of what is not there, after all others.
constexpr qsizetype nowhere = std::numeric_limits<qsizetype>::max();

/// Where a pin's swatch is in the palette.
using Place = std::tuple<qsizetype, qsizetype, ReferenceTime>;

Place placeOf(const PinnedColor& pin, const Palette* palette) {
    const qsizetype scale = palette ? indexOfId(palette->scales(), pin->scaleId) : -1;
    const qsizetype swatch =
        scale < 0 ? -1 : indexOfId(palette->scales().at(scale).swatches(), pin->swatchId);
    return {scale < 0 ? nowhere : scale, swatch < 0 ? nowhere : swatch, pin->pinnedAt};
}

QList<FavoriteRow> sortedRows(const QList<PinnedColor>& pins, const Palette* palette,
                              const UserDefaults& defaults) {
    QList<std::pair<Place, const PinnedColor*>> placed;
    for (const PinnedColor& pin : pins)
        placed.append({placeOf(pin, palette), &pin});
    std::stable_sort(placed.begin(), placed.end(),
                     [](const auto& a, const auto& b) { return a.first < b.first; });
    const ColorFormat format = colorFormat(defaults);
    const FormatOptions options = formatOptions(defaults);
    QList<FavoriteRow> rows;
    for (const auto& [place, pin] : placed) {
        const QString label = (*pin)->label.value_or(QString());
        const QString title =
            label.isEmpty() ? QString::fromStdString(formatted(pin->cachedColor(), format, options))
                            : label;
        rows.append({cutTitle(title), label.isEmpty(), *pin});
    }
    return rows;
}

} // namespace

QList<RecentRow> recentRows(const UserDefaults& defaults) {
    const ColorFormat format = colorFormat(defaults);
    FormatOptions options = formatOptions(defaults);
    options.decimalPlaces = decimalPlacesOfRecents;
    const QList<RecentColor> colors = loadRecentColors(defaults);
    QList<RecentRow> rows;
    for (const RecentColor& color :
         colors.first(std::min<qsizetype>(recentColorsLimit(defaults), colors.size())))
        rows.append({QString::fromStdString(formatted(color.color(), format, options)), color});
    return rows;
}

QList<FavoriteGroup> favoriteGroups(const QList<PinnedColor>& pins, const QList<Palette>& palettes,
                                    const UserDefaults& defaults) {
    QHash<QUuid, const Palette*> byId;
    for (const Palette& palette : palettes)
        byId.insert(palette.id(), &palette);
    QList<QUuid> order;
    QHash<QUuid, QList<PinnedColor>> pinsOf;
    for (const PinnedColor& pin : pins) {
        auto& group = pinsOf[pin->paletteId];
        if (group.isEmpty())
            order.append(pin->paletteId);
        group.append(pin);
    }
    QList<FavoriteGroup> groups;
    for (const QUuid& id : order) {
        const Palette* palette = byId.value(id);
        const QString title = palette ? palette->name() : pinsOf[id].first()->paletteName;
        groups.append({title, sortedRows(pinsOf[id], palette, defaults)});
    }
    return groups;
}

QString cutTitle(const QString& text) {
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    qsizetype kept = 0;
    for (int count = 0; count < longestTitle; ++count) {
        if (finder.toNextBoundary() < 0)
            return text;
        if (count == longestTitle - 2)
            kept = finder.position();
    }
    return finder.position() >= text.size() ? text : text.left(kept) + u'\u2026';
}

} // namespace dropshade
