// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "palettes/PaletteHeaderWidget.h"
#include "palettes/PaletteList.h"
#include "palettes/PaletteSearch.h"
#include "palettes/SwatchPainting.h"
#include "widgets/Metrics.h"

#include <QPainter>

#include <algorithm>

namespace dropshade {
namespace {

using Part = ListElement::Part;

/// A program that was held up goes on from where it is.
constexpr std::chrono::duration<double> longestFrame{0.05};

} // namespace

// Dragging

void PaletteList::refreshDragFrames(const QUuid& paletteId) {
    PaletteDragController& drag = m_model.drag();
    drag.setPaletteFrames(m_layout.headerFrames());
    drag.setScaleFrames(m_layout.scaleFrames());
    drag.setSwatchFrames(m_layout.swatchFrames(m_model, paletteId));
}

void PaletteList::draggingChanged() {
    if (m_model.drag().isDragging()) {
        m_lifted = m_model.drag().dragging();
        liftDragImage();
    } else {
        settleDragImage();
    }
    for (const ListRow& row : m_layout.rows()) {
        if (ListRowWidget* widget = m_widgets.value(keyOf(row)))
            widget->setLifted(isLifted(row));
    }
    applyMarks();
    startMoving();
}

void PaletteList::liftDragImage() {
    const double ratio = devicePixelRatioF();
    if (const auto* item = std::get_if<PaletteDragController::SwatchItem>(&*m_lifted)) {
        const auto swatch = m_model.swatch({item->paletteId, item->scaleId, item->swatchId});
        if (!swatch)
            return;
        const double side = m_layout.measures().swatchSide;
        // As sharp as it gets when it is lifted.
        const double drawn = side * metrics::swatchDraggedScale;
        QPixmap picture((QSizeF(drawn, drawn) * ratio).toSize());
        picture.setDevicePixelRatio(ratio);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        drawSwatch(painter, QRectF(0.0, 0.0, drawn, drawn), *swatch,
                   m_model.isFavorite(swatch->id()), m_look.theme());
        painter.end();
        m_dragImage->lift(DragImage::Kind::Swatch, picture, QSizeF(side, side));
        return;
    }
    const auto* scale = std::get_if<PaletteDragController::ScaleItem>(&*m_lifted);
    const auto row = m_layout.rowOf(
        scale ? scale->scaleId : std::get<PaletteDragController::PaletteItem>(*m_lifted).paletteId);
    if (!row)
        return;
    ListRowWidget* widget = widgetOf(*row);
    m_dragImage->lift(DragImage::Kind::Row, widget->image(), QSizeF(widget->size()));
}

void PaletteList::moveDragImage() {
    if (m_dragImage->isSettling())
        return;
    if (const auto floating = m_model.drag().floating(QRectF(rect())))
        m_dragImage->moveCenter(floating->center);
}

void PaletteList::settleDragImage() {
    if (!m_lifted)
        return;
    ListElement element{Part::Header, {}, {}, {}};
    if (const auto* palette = std::get_if<PaletteDragController::PaletteItem>(&*m_lifted)) {
        element.paletteId = palette->paletteId;
    } else if (const auto* scale = std::get_if<PaletteDragController::ScaleItem>(&*m_lifted)) {
        element = {Part::Label, scale->paletteId, scale->scaleId, {}};
    } else {
        const auto& swatch = std::get<PaletteDragController::SwatchItem>(*m_lifted);
        element = {Part::Swatch, swatch.paletteId, swatch.scaleId, swatch.swatchId};
        // It may be in another scale now.
        if (const auto holder = m_model.palette(swatch.paletteId)) {
            for (const PaletteScale& other : holder->scales()) {
                if (indexOfId(other.swatches(), swatch.swatchId) >= 0)
                    element.scaleId = other.id();
            }
        }
    }
    const auto row = rowOf(element);
    if (!row || m_look.duration(listFrameTime).count() == 0) {
        m_dragImage->vanish();
        m_lifted.reset();
        return;
    }
    const ListRow& place = m_layout.rows().at(*row);
    const QPointF middle(width() / 2.0, place.top + place.height / 2.0);
    m_dragImage->settle(element.part == Part::Swatch ? areaOf(element).center() : middle);
}

// Moving

/// Rows that were elsewhere a moment ago and can be seen on their way start from there, as it
/// looked: the view has `scrolled` since.
void PaletteList::followMotions(const QHash<Key, double>& formerTops,
                                const QHash<Key, Motion>& running, int scrolled, Change change) {
    const QRect seen = view();
    const auto [response, fraction] =
        change == Change::Opens ? metrics::disclosureSpring : metrics::reorder;
    for (qsizetype index = 0; index < m_layout.rows().size(); ++index) {
        const ListRow& row = m_layout.rows().at(index);
        const auto found = formerTops.constFind(keyOf(row));
        if (found == formerTops.cend() || *found + scrolled == row.top)
            continue;
        const double former = *found + scrolled;
        const double top = std::min(former, row.top);
        const double bottom = std::max(former, row.top) + row.height;
        if (bottom < seen.top() || top > seen.bottom())
            continue;
        const auto known = running.constFind(keyOf(row));
        Motion motion{index, known == running.cend() ? SpringMotion(former, response, fraction)
                                                     : known->top};
        motion.top.displace(former);
        motion.top.setTarget(row.top);
        m_motions.insert(keyOf(row), motion);
    }
}

void PaletteList::startMoving() {
    if (m_frames.isActive())
        return;
    m_sinceFrame.start();
    m_frames.start();
}

void PaletteList::advance() {
    const std::chrono::duration<double> passed =
        std::min(std::chrono::duration<double>(m_sinceFrame.restart() / 1000.0), longestFrame);
    bool moves = m_dragImage->advance(passed);
    if (!m_dragImage->isVisible() && !m_model.drag().isDragging() && m_lifted) {
        m_lifted.reset();
        for (ListRowWidget* row : std::as_const(m_widgets))
            row->setLifted(false);
    }
    for (auto motion = m_motions.begin(); motion != m_motions.end();) {
        motion->top.advance(passed);
        motion = motion->top.isAtRest() ? m_motions.erase(motion) : std::next(motion);
    }
    moves = moves || !m_motions.isEmpty();
    for (const qsizetype index : wantedRows()) {
        const ListRow& row = m_layout.rows().at(index);
        if (ListRowWidget* widget = m_widgets.value(keyOf(row))) {
            placeRow(row, *widget);
            moves = widget->advance(passed) || moves;
        }
    }
    if (moves)
        return;
    m_frames.stop();
    syncRows(Change::Jumps, Fill::New);
}

} // namespace dropshade
