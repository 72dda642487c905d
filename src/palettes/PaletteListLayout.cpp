// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "palettes/PaletteListLayout.h"

#include <algorithm>
#include <cmath>

namespace dropshade {
namespace {

constexpr double rowPadding = 4.0;
constexpr double compactLabelTop = 6.0;
constexpr double compactLabelGap = 2.0;
constexpr double groupEnd = 12.0;
constexpr double separator = 1.0;
constexpr double addScaleHeight = 40.0;

} // namespace

QRectF ListMeasures::labelArea() const {
    if (isCompact)
        return {margin(), compactLabelTop, width - margin() - rightMargin(), textLine};
    const double rowsWidth = width - margin() - rightMargin();
    const double line = std::max(swatchSide, textLine);
    return {margin(), rowPadding, PalettesModel::labelWidth(rowsWidth), line};
}

QPointF ListMeasures::flowOrigin() const {
    const QRectF label = labelArea();
    if (isCompact)
        return {margin(), label.bottom() + compactLabelGap};
    return {label.right(), rowPadding + std::floor((label.height() - swatchSide) / 2.0)};
}

double ListMeasures::flowWidth() const {
    return width - rightMargin() - flowOrigin().x();
}

PaletteListLayout::PaletteListLayout(const PalettesModel& model, const ListMeasures& measures)
    : m_measures(measures) {
    const QList<Palette>& palettes = model.shownPalettes();
    for (qsizetype index = 0; index < palettes.size(); ++index)
        addGroup(model, palettes.at(index), index);
}

void PaletteListLayout::append(ListRow row, double height) {
    row.top = m_height;
    row.height = height;
    m_height += height;
    m_rows.append(row);
}

void PaletteListLayout::addGroup(const PalettesModel& model, const Palette& palette,
                                 qsizetype index) {
    const ListRow group{ListRow::Kind::Header, palette.id(), {}, index, 0, 0.0, 0.0};
    append(group, m_measures.headerHeight());
    if (model.showsScales(palette.id())) {
        const QList<PaletteScale>& scales = model.shownScales(palette);
        for (qsizetype place = 0; place < scales.size(); ++place) {
            ListRow row = group;
            row.kind = ListRow::Kind::Scale;
            row.scaleId = scales.at(place).id();
            row.scaleIndex = place;
            const double flow = flowHeight(m_measures, slotCount(model, scales.at(place)));
            append(row,
                   std::max(m_measures.flowOrigin().y() + flow, m_measures.labelArea().bottom()) +
                       rowPadding);
        }
        if (scales.isEmpty()) {
            ListRow row = group;
            row.kind = ListRow::Kind::AddScale;
            append(row, addScaleHeight);
        }
        m_height += groupEnd;
    }
    m_height += separator;
}

PaletteListLayout::Range PaletteListLayout::rowsBetween(double top, double bottom) const {
    const auto first =
        std::partition_point(m_rows.cbegin(), m_rows.cend(),
                             [top](const ListRow& row) { return row.top + row.height <= top; });
    const auto end = std::partition_point(
        first, m_rows.cend(), [bottom](const ListRow& row) { return row.top < bottom; });
    return {first - m_rows.cbegin(), end - m_rows.cbegin()};
}

std::optional<qsizetype> PaletteListLayout::rowAt(double y) const {
    const auto after = std::partition_point(m_rows.cbegin(), m_rows.cend(),
                                            [y](const ListRow& row) { return row.top <= y; });
    if (after == m_rows.cbegin())
        return std::nullopt;
    const auto row = after - 1;
    return y < row->top + row->height ? std::optional(row - m_rows.cbegin()) : std::nullopt;
}

std::optional<qsizetype> PaletteListLayout::rowOf(QUuid id) const {
    for (qsizetype index = 0; index < m_rows.size(); ++index) {
        const ListRow& row = m_rows.at(index);
        if (row.kind != ListRow::Kind::AddScale && row.id() == id)
            return index;
    }
    return std::nullopt;
}

PaletteDragController::Frames PaletteListLayout::headerFrames() const {
    PaletteDragController::Frames frames;
    for (const ListRow& row : m_rows) {
        if (row.kind == ListRow::Kind::Header)
            frames.insert(row.paletteId, QRectF(0.0, row.top, m_measures.width, row.height));
    }
    return frames;
}

PaletteDragController::Frames PaletteListLayout::scaleFrames() const {
    PaletteDragController::Frames frames;
    for (const ListRow& row : m_rows) {
        if (row.kind == ListRow::Kind::Scale)
            frames.insert(row.scaleId, QRectF(0.0, row.top, m_measures.width, row.height));
    }
    return frames;
}

PaletteDragController::Frames PaletteListLayout::swatchFrames(const PalettesModel& model,
                                                              QUuid paletteId) const {
    PaletteDragController::Frames frames;
    const QSizeF side(m_measures.swatchSide, m_measures.swatchSide);
    for (const ListRow& row : m_rows) {
        if (row.kind != ListRow::Kind::Scale || row.paletteId != paletteId)
            continue;
        const Palette& palette = model.shownPalettes().at(row.paletteIndex);
        const PaletteScale& scale = model.shownScales(palette).at(row.scaleIndex);
        auto cache = FlowLayout::makeCache();
        HoverScratch scratch;
        FlowLayout(swatchSpacing, &scratch)
            .placeSubviews(QRectF(0.0, 0.0, m_measures.flowWidth(), 0.0),
                           {slotCount(model, scale), [side](qsizetype) { return side; }}, cache);
        const QPointF origin = m_measures.flowOrigin() + QPointF(0.0, row.top);
        const auto gap = phantomIndex(model, scale);
        for (qsizetype index = 0; index < scale.swatches().size(); ++index) {
            const qsizetype slot = gap && index >= *gap ? index + 1 : index;
            frames.insert(scale.swatches().at(index).id(),
                          scratch.frames.at(slot).translated(origin));
        }
    }
    return frames;
}

std::optional<qsizetype> PaletteListLayout::phantomIndex(const PalettesModel& model,
                                                         const PaletteScale& scale) {
    const PaletteDragController& drag = model.drag();
    const bool isSwatch =
        drag.dragging() &&
        std::holds_alternative<PaletteDragController::SwatchItem>(*drag.dragging());
    if (!isSwatch || drag.intendedDropScaleId() != scale.id())
        return std::nullopt;
    return std::min(drag.intendedDropIndex(), scale.swatches().size());
}

qsizetype PaletteListLayout::slotCount(const PalettesModel& model, const PaletteScale& scale) {
    return scale.swatches().size() + (phantomIndex(model, scale) ? 2 : 1);
}

double PaletteListLayout::flowHeight(const ListMeasures& measures, qsizetype slots) {
    const double pitch = measures.swatchSide + swatchSpacing;
    const auto perLine = std::max<qsizetype>(
        1, qsizetype(std::floor((measures.flowWidth() + swatchSpacing) / pitch)));
    const qsizetype lines = (slots + perLine - 1) / perLine;
    return double(lines) * pitch - swatchSpacing;
}

} // namespace dropshade
