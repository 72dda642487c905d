// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "palettes/PaletteDragController.h"

#include "palettes/FlowLayout.h"
#include "palettes/PaletteSearch.h"

#include <algorithm>

namespace dropshade {
namespace {

template <typename Item>
QList<Item> moved(QList<Item> items, qsizetype from, qsizetype to) {
    items.move(from, to);
    return items;
}

} // namespace

PaletteDragController::PaletteDragController(UserPaletteStore& store) : m_store(store) {}

PaletteDragController::~PaletteDragController() = default;

void PaletteDragController::setPaletteFrames(const Frames& headers) {
    if (m_paletteFrames != headers)
        m_paletteFrames = headers;
}

void PaletteDragController::setScaleFrames(const Frames& rows) {
    if (m_scaleFrames != rows)
        m_scaleFrames = rows;
}

void PaletteDragController::setSwatchFrames(const Frames& swatches) {
    if (m_swatchFrames != swatches)
        m_swatchFrames = swatches;
}

void PaletteDragController::start(const Item& item) {
    m_grabOffset = QPointF();
    m_isGrabOffsetCaptured = false;
    m_dragging = item;
}

void PaletteDragController::setCursor(const QPointF& location) {
    if (m_cursor == location)
        return;
    m_cursor = location;
    Q_EMIT cursorDidChange();
}

void PaletteDragController::captureGrabOffset(const QPointF& offset) {
    m_grabOffset = offset;
    m_isGrabOffsetCaptured = true;
}

void PaletteDragController::reset() {
    m_grabOffset = QPointF();
    m_isGrabOffsetCaptured = false;
    m_dropHighlightScaleId.reset();
    m_intendedDropScaleId.reset();
    m_intendedDropIndex = 0;
    m_dragging.reset();
}

// Palettes

void PaletteDragController::paletteDragChanged(const DragValue& value, QUuid id) {
    const bool begins = !m_dragging || !std::holds_alternative<PaletteItem>(*m_dragging);
    if (begins) {
        m_localPalettes = m_store.palettes();
        start(PaletteItem{id});
        Q_EMIT draggingDidChange();
    }
    if (const auto frame = m_paletteFrames.constFind(id);
        !m_isGrabOffsetCaptured && frame != m_paletteFrames.cend()) {
        // A header hangs by its middle, whatever its height was when it was grabbed.
        captureGrabOffset(QPointF(value.startLocation.x() - frame->center().x(), 0.0));
    }
    setCursor(value.location);
    const QList<Palette> list = m_localPalettes.value_or(m_store.palettes());
    const qsizetype source = indexOfId(list, id);
    if (source < 0)
        return;
    const auto hit = std::find_if(list.cbegin(), list.cend(), [&](const Palette& palette) {
        const auto frame = m_paletteFrames.constFind(palette.id());
        return palette.id() != id && frame != m_paletteFrames.cend() &&
               holds(*frame, value.location);
    });
    if (hit == list.cend())
        return;
    m_localPalettes = moved(list, source, hit - list.cbegin());
    Q_EMIT arrangementDidChange();
}

void PaletteDragController::paletteDragEnded() {
    if (!m_dragging || !std::holds_alternative<PaletteItem>(*m_dragging))
        return;
    const QList<QUuid> order = idsOf(m_localPalettes.value_or(m_store.palettes()));
    m_localPalettes.reset();
    reset();
    m_store.reorderPalettes(order);
    Q_EMIT arrangementDidChange();
    Q_EMIT draggingDidChange();
    Q_EMIT paletteDragDidEnd();
}

// Scales

std::optional<Palette> PaletteDragController::storedPalette(QUuid id) const {
    return itemWithId(m_store.palettes(), id);
}

bool PaletteDragController::beginScales(QUuid paletteId, const Item& item) {
    const auto palette = storedPalette(paletteId);
    if (!palette)
        return false;
    m_activeScalesPaletteId = paletteId;
    m_activeLocalScales = palette->scales();
    start(item);
    Q_EMIT draggingDidChange();
    return true;
}

void PaletteDragController::clearScales() {
    m_activeScalesPaletteId.reset();
    m_activeLocalScales.clear();
    reset();
    Q_EMIT arrangementDidChange();
    Q_EMIT draggingDidChange();
}

qsizetype PaletteDragController::scaleIndexAt(const QPointF& point,
                                              const std::optional<QUuid>& excluded) const {
    const auto hit = std::find_if(
        m_activeLocalScales.cbegin(), m_activeLocalScales.cend(), [&](const PaletteScale& scale) {
            const auto frame = m_scaleFrames.constFind(scale.id());
            return scale.id() != excluded && frame != m_scaleFrames.cend() && holds(*frame, point);
        });
    return hit == m_activeLocalScales.cend() ? -1 : hit - m_activeLocalScales.cbegin();
}

void PaletteDragController::scaleDragChanged(QUuid paletteId, QUuid scaleId,
                                             const DragValue& value) {
    const Item item = ScaleItem{paletteId, scaleId};
    const bool goesOn = m_activeScalesPaletteId == paletteId && m_dragging == item;
    if (!goesOn && !beginScales(paletteId, item))
        return;
    if (const auto frame = m_scaleFrames.constFind(scaleId);
        !m_isGrabOffsetCaptured && frame != m_scaleFrames.cend())
        captureGrabOffset(value.startLocation - frame->center());
    setCursor(value.location);
    const qsizetype source = indexOfId(m_activeLocalScales, scaleId);
    if (source < 0)
        return;
    const qsizetype target = scaleIndexAt(value.location, scaleId);
    if (target < 0)
        return;
    m_activeLocalScales.move(source, target);
    Q_EMIT arrangementDidChange();
}

void PaletteDragController::scaleDragEnded(QUuid paletteId) {
    const auto* item = m_dragging ? std::get_if<ScaleItem>(&*m_dragging) : nullptr;
    if (!item || item->paletteId != paletteId)
        return;
    m_store.reorderScales(paletteId, idsOf(m_activeLocalScales));
    clearScales();
}

// Swatches

std::optional<PaletteDragController::Place> PaletteDragController::placeOf(QUuid swatchId) const {
    for (qsizetype scale = 0; scale < m_activeLocalScales.size(); ++scale) {
        const qsizetype swatch = indexOfId(m_activeLocalScales.at(scale).swatches(), swatchId);
        if (swatch >= 0)
            return Place{scale, swatch};
    }
    return std::nullopt;
}

void PaletteDragController::intend(const std::optional<QUuid>& scaleId, qsizetype index) {
    if (m_intendedDropScaleId == scaleId && m_dropHighlightScaleId == scaleId &&
        m_intendedDropIndex == index)
        return;
    m_intendedDropScaleId = scaleId;
    m_dropHighlightScaleId = scaleId;
    m_intendedDropIndex = index;
    Q_EMIT arrangementDidChange();
}

qsizetype PaletteDragController::insertionIndex(const QPointF& point, const PaletteScale& scale,
                                                const std::optional<QUuid>& excluded) const {
    const QList<PaletteSwatch>& swatches = scale.swatches();
    for (qsizetype index = 0; index < swatches.size(); ++index) {
        const QUuid& id = swatches.at(index).id();
        const auto frame = m_swatchFrames.constFind(id);
        if (id == excluded || frame == m_swatchFrames.cend())
            continue;
        if (point.y() < frame->top() || point.y() > frame->bottom())
            continue;
        if (point.x() < frame->center().x())
            return index;
    }
    return swatches.size();
}

void PaletteDragController::reorderWithin(const Place& source, const QPointF& location) {
    PaletteScale& scale = m_activeLocalScales[source.scale];
    QList<PaletteSwatch> swatches = scale.swatches();
    const qsizetype index = insertionIndex(location, scale, swatches.at(source.swatch).id());
    const qsizetype adjusted = source.swatch < index ? index - 1 : index;
    if (adjusted == source.swatch)
        return;
    swatches.move(source.swatch, std::clamp<qsizetype>(adjusted, 0, swatches.size() - 1));
    scale.setSwatches(swatches);
    Q_EMIT arrangementDidChange();
}

void PaletteDragController::swatchDragChanged(QUuid paletteId, QUuid scaleId, QUuid swatchId,
                                              const DragValue& value) {
    const auto* present = m_dragging ? std::get_if<SwatchItem>(&*m_dragging) : nullptr;
    const bool goesOn =
        m_activeScalesPaletteId == paletteId && present && present->swatchId == swatchId;
    if (!goesOn && !beginScales(paletteId, SwatchItem{paletteId, scaleId, swatchId}))
        return;
    if (!m_isGrabOffsetCaptured) {
        const auto frame = m_swatchFrames.constFind(swatchId);
        if (frame == m_swatchFrames.cend()) {
            setCursor(value.location);
            return;
        }
        captureGrabOffset(value.startLocation - frame->center());
    }
    setCursor(value.location);
    const auto source = placeOf(swatchId);
    if (!source)
        return;
    const qsizetype target = scaleIndexAt(value.location, std::nullopt);
    if (target < 0) {
        intend(std::nullopt, m_intendedDropIndex);
    } else if (target != source->scale) {
        const PaletteScale& scale = m_activeLocalScales.at(target);
        intend(scale.id(), insertionIndex(value.location, scale, std::nullopt));
    } else {
        reorderWithin(*source, value.location);
        intend(std::nullopt, m_intendedDropIndex);
    }
}

void PaletteDragController::commitSwatch(QUuid paletteId, QUuid swatchId, const Place& place) {
    const PaletteScale& holder = m_activeLocalScales.at(place.scale);
    if (m_intendedDropScaleId && *m_intendedDropScaleId != holder.id()) {
        m_store.moveSwatch(paletteId, holder.id(), swatchId, *m_intendedDropScaleId,
                           m_intendedDropIndex);
        return;
    }
    const auto palette = storedPalette(paletteId);
    const auto present = palette ? itemWithId(palette->scales(), holder.id()) : std::nullopt;
    const QList<QUuid> order = idsOf(holder.swatches());
    if (!present || idsOf(present->swatches()) != order)
        m_store.reorderSwatches(paletteId, holder.id(), order);
}

void PaletteDragController::swatchDragEnded(QUuid paletteId) {
    const auto* item = m_dragging ? std::get_if<SwatchItem>(&*m_dragging) : nullptr;
    if (!item || item->paletteId != paletteId)
        return;
    if (const auto place = placeOf(item->swatchId))
        commitSwatch(paletteId, item->swatchId, *place);
    clearScales();
}

void PaletteDragController::end() {
    if (!m_dragging)
        return;
    if (std::holds_alternative<PaletteItem>(*m_dragging))
        paletteDragEnded();
    else if (const auto* scale = std::get_if<ScaleItem>(&*m_dragging))
        scaleDragEnded(scale->paletteId);
    else
        swatchDragEnded(std::get<SwatchItem>(*m_dragging).paletteId);
}

void PaletteDragController::abandon() {
    m_localPalettes.reset();
    clearScales();
}

std::optional<PaletteDragController::Floating>
PaletteDragController::floating(const QRectF& bounds) const {
    if (!m_dragging)
        return std::nullopt;
    const auto frameIn = [](const Frames& frames, QUuid id) -> std::optional<QSizeF> {
        const auto frame = frames.constFind(id);
        return frame == frames.cend() ? std::nullopt : std::optional(frame->size());
    };
    const QPointF hanging = m_cursor - m_grabOffset;
    if (const auto* palette = std::get_if<PaletteItem>(&*m_dragging)) {
        const auto size = frameIn(m_paletteFrames, palette->paletteId);
        return size ? std::optional(Floating{{bounds.center().x(), hanging.y()}, *size})
                    : std::nullopt;
    }
    if (const auto* scale = std::get_if<ScaleItem>(&*m_dragging)) {
        const auto size = frameIn(m_scaleFrames, scale->scaleId);
        return size ? std::optional(Floating{{bounds.center().x(), hanging.y()}, *size})
                    : std::nullopt;
    }
    const auto size = frameIn(m_swatchFrames, std::get<SwatchItem>(*m_dragging).swatchId);
    return size ? std::optional(Floating{hanging, *size}) : std::nullopt;
}

} // namespace dropshade
