// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "palettes/PaletteMoves.h"

#include "palettes/PaletteSearch.h"

#include <algorithm>

namespace dropshade {
namespace {

/// The order after the step; empty where there is none.
template <typename Item>
QList<QUuid> stepped(const QList<Item>& items, qsizetype from, qsizetype to) {
    if (from < 0 || to < 0 || to >= items.size())
        return {};
    QList<QUuid> ids = idsOf(items);
    ids.move(from, to);
    return ids;
}

qsizetype next(qsizetype index, PaletteMoves::Direction direction) {
    return direction == PaletteMoves::Direction::Forward ? index + 1 : index - 1;
}

QString spokenName(const PaletteSwatch& swatch) {
    return swatch.label() && !swatch.label()->isEmpty() ? *swatch.label() : swatch.value();
}

QString placeText(const QString& name, qsizetype index, qsizetype count) {
    //: For screen readers: %1 is a name, %2 its new place, %3 how many there are
    return PaletteMoves::tr("%1 moved to %2 of %3")
        .arg(name, QString::number(index + 1), QString::number(count));
}

} // namespace

bool PaletteMoves::movePalette(QUuid id, Direction direction) {
    const QList<Palette> palettes = m_model.store().palettes();
    const qsizetype from = indexOfId(palettes, id);
    const qsizetype to = next(from, direction);
    const QList<QUuid> order = stepped(palettes, from, to);
    if (order.isEmpty())
        return false;
    m_model.store().reorderPalettes(order);
    Q_EMIT announced(placeText(palettes.at(from).name(), to, palettes.size()));
    return true;
}

bool PaletteMoves::moveScale(QUuid paletteId, QUuid scaleId, Direction direction) {
    const auto palette = m_model.palette(paletteId);
    if (!palette)
        return false;
    const QList<PaletteScale> scales = palette->scales();
    const qsizetype from = indexOfId(scales, scaleId);
    const qsizetype to = next(from, direction);
    const QList<QUuid> order = stepped(scales, from, to);
    if (order.isEmpty())
        return false;
    m_model.store().reorderScales(paletteId, order);
    Q_EMIT announced(placeText(scales.at(from).name(), to, scales.size()));
    return true;
}

bool PaletteMoves::moveSwatch(const SwatchPath& path, Direction direction) {
    const auto scale = m_model.scale(path.paletteId, path.scaleId);
    if (!scale)
        return false;
    const QList<PaletteSwatch> swatches = scale->swatches();
    const qsizetype from = indexOfId(swatches, path.swatchId);
    const qsizetype to = next(from, direction);
    const QList<QUuid> order = stepped(swatches, from, to);
    if (order.isEmpty())
        return false;
    m_model.store().reorderSwatches(path.paletteId, path.scaleId, order);
    Q_EMIT announced(placeText(spokenName(swatches.at(from)), to, swatches.size()));
    return true;
}

std::optional<SwatchPath> PaletteMoves::moveSwatchToScale(const SwatchPath& path,
                                                          Direction direction) {
    const auto palette = m_model.palette(path.paletteId);
    if (!palette)
        return std::nullopt;
    const QList<PaletteScale> scales = palette->scales();
    const qsizetype from = indexOfId(scales, path.scaleId);
    const qsizetype to = next(from, direction);
    if (from < 0 || to < 0 || to >= scales.size())
        return std::nullopt;
    const QList<PaletteSwatch> swatches = scales.at(from).swatches();
    const qsizetype index = indexOfId(swatches, path.swatchId);
    if (index < 0)
        return std::nullopt;
    const PaletteScale& target = scales.at(to);
    const qsizetype place = std::min(index, target.swatches().size());
    m_model.store().moveSwatch(path.paletteId, path.scaleId, path.swatchId, target.id(), place);
    //: For screen readers: %1 is a color, %2 the scale that it is in now, %3 its place there
    Q_EMIT announced(
        tr("%1 moved to %2, place %3")
            .arg(spokenName(swatches.at(index)), target.name(), QString::number(place + 1)));
    return SwatchPath{path.paletteId, target.id(), path.swatchId};
}

} // namespace dropshade
