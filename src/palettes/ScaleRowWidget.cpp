// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "palettes/ScaleRowWidget.h"

#include "palettes/SwatchPainting.h"
#include "widgets/Metrics.h"
#include "widgets/Painting.h"
#include "widgets/TypeScale.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <utility>

namespace dropshade {
namespace {

using Part = ListElement::Part;

constexpr double pillLeft = 2.0;
constexpr double compactPillLeft = 0.0;
constexpr double pillPadding = 8.0;
constexpr double pillHeight = 28.0;
constexpr double gripWidth = 14.0;
constexpr double ringGap = 1.0;
constexpr double ringWidth = 1.5;

/// Identities of slots that are no swatches.
const QUuid phantomSlot(0x70'68'61'6e, 0x74'6f, 0x6d, 0, 0, 0, 0, 0, 0, 0, 1);
const QUuid addSlot(0x70'68'61'6e, 0x74'6f, 0x6d, 0, 0, 0, 0, 0, 0, 0, 2);

} // namespace

ScaleRowWidget::ScaleRowWidget(const Look& look, PalettesModel& model, QWidget* list)
    : ListRowWidget(look, list), m_model(model),
      m_hover([&model](const auto& swatch) { model.hover().setSwatch(swatch); }),
      m_scale(QUuid(), QString(), {}) {}

ScaleRowWidget::~ScaleRowWidget() = default;

void ScaleRowWidget::display(QUuid paletteId, const PaletteScale& scale,
                             const ListMeasures& measures, Motion motion) {
    const bool isOther = m_scale.id() != scale.id() || m_measures != measures;
    m_paletteId = paletteId;
    m_scale = scale;
    m_measures = measures;
    m_phantom = PaletteListLayout::phantomIndex(m_model, scale);
    if (isOther) {
        m_cache = FlowLayout::makeCache();
        m_places.clear();
    }
    layOut(isOther ? Motion::Jumps : motion);
    update();
}

void ScaleRowWidget::layOut(Motion motion) {
    const qsizetype slots = PaletteListLayout::slotCount(m_model, m_scale);
    const QSizeF side(m_measures.swatchSide, m_measures.swatchSide);
    FlowLayout::updateCache(m_cache, slots);
    FlowLayout(swatchSpacing, &m_hover.scratch())
        .placeSubviews(QRectF(0.0, 0.0, m_measures.flowWidth(), 0.0),
                       {slots, [side](qsizetype) { return side; }}, m_cache);
    QHash<QUuid, Place> former = std::exchange(m_places, {});
    const QPointF origin = m_measures.flowOrigin();
    qsizetype slot = 0;
    const auto put = [&](const QUuid& id) {
        if (const auto known = former.constFind(id); known != former.cend())
            m_places.insert(id, *known);
        place(id, origin + m_cache.positions.at(slot++), motion);
    };
    for (qsizetype index = 0; index <= m_scale.swatches().size(); ++index) {
        if (m_phantom == index)
            put(phantomSlot);
        put(index < m_scale.swatches().size() ? m_scale.swatches().at(index).id() : addSlot);
    }
}

void ScaleRowWidget::place(const QUuid& id, const QPointF& corner, Motion motion) {
    auto known = m_places.find(id);
    if (known == m_places.end()) {
        const auto [response, fraction] = metrics::reorder;
        known = m_places.insert(id, {SpringMotion(corner.x(), response, fraction),
                                     SpringMotion(corner.y(), response, fraction)});
    }
    known->x.setTarget(corner.x());
    known->y.setTarget(corner.y());
    if (motion == Motion::Jumps) {
        known->x.finish();
        known->y.finish();
    }
}

bool ScaleRowWidget::advance(std::chrono::duration<double> time) {
    bool moves = false;
    for (auto place = m_places.begin(); place != m_places.end(); ++place) {
        if (place->x.isAtRest() && place->y.isAtRest())
            continue;
        const QRectF before = slotArea(place.key());
        for (SpringMotion* motion : {&place->x, &place->y}) {
            motion->advance(time);
            if (motion->isAtRest())
                motion->finish();
        }
        constexpr double reach = metrics::focusReach;
        update(before.united(slotArea(place.key()))
                   .adjusted(-reach, -reach, reach, reach)
                   .toAlignedRect());
        moves = moves || !place->x.isAtRest() || !place->y.isAtRest();
    }
    return moves;
}

void ScaleRowWidget::setDropTarget(bool isTarget) {
    if (m_isDropTarget == isTarget)
        return;
    m_isDropTarget = isTarget;
    update();
}

void ScaleRowWidget::pointerMoved(const QPointF& local) {
    m_hover.moved(local - m_measures.flowOrigin(), m_scale.swatches());
}

void ScaleRowWidget::pointerLeft() {
    m_hover.ended();
}

// Where things are

QRectF ScaleRowWidget::slotArea(const QUuid& id) const {
    const auto place = m_places.constFind(id);
    if (place == m_places.cend())
        return {};
    return {place->x.value(), place->y.value(), m_measures.swatchSide, m_measures.swatchSide};
}

QRectF ScaleRowWidget::pillArea() const {
    const QRectF label = m_measures.labelArea();
    const double text = QFontMetricsF(textFont(TextStyle::Body)).horizontalAdvance(m_scale.name());
    const double left = m_measures.isCompact ? compactPillLeft : pillLeft;
    const double right = std::min(label.left() + text + pillPadding, label.right());
    const double height = std::min(pillHeight, std::max(label.height(), m_measures.textLine));
    return {left, label.center().y() - height / 2.0, right - left, height};
}

QRectF ScaleRowWidget::gripArea() const {
    const QRectF pill = pillArea();
    return {pill.left(), pill.top(), gripWidth, pill.height()};
}

ListElement ScaleRowWidget::elementAt(const QPointF& local) const {
    const auto element = [this](Part part, const QUuid& swatchId = {}) {
        return ListElement{part, m_paletteId, m_scale.id(), swatchId};
    };
    for (const PaletteSwatch& swatch : m_scale.swatches()) {
        if (holds(slotArea(swatch.id()), local))
            return element(Part::Swatch, swatch.id());
    }
    if (holds(slotArea(addSlot), local))
        return element(Part::AddSwatch);
    if (holds(gripArea(), local))
        return element(Part::Grip);
    const QRectF label = m_measures.labelArea();
    const QRectF column(0.0, label.top(), label.right() - metrics::space4, label.height());
    return holds(column, local) ? element(Part::Label) : ListElement();
}

QRectF ScaleRowWidget::areaOf(const ListElement& element) const {
    if (element.scaleId != m_scale.id())
        return {};
    switch (element.part) {
    case Part::Swatch:
        return slotArea(element.swatchId);
    case Part::AddSwatch:
        return slotArea(addSlot);
    case Part::Label:
    case Part::Grip:
        return pillArea();
    default:
        return {};
    }
}

QString ScaleRowWidget::elidedNameOf(const ListElement& element) const {
    const bool isName = element.part == Part::Label || element.part == Part::Grip;
    const double room = m_measures.labelArea().width() - pillPadding;
    const double text = QFontMetricsF(textFont(TextStyle::Body)).horizontalAdvance(m_scale.name());
    return isName && element.scaleId == m_scale.id() && text > room ? m_scale.name() : QString();
}

QRectF ScaleRowWidget::repaintAreaOf(const ListElement& element) const {
    const QRectF area = ListRowWidget::repaintAreaOf(element);
    const bool isName = element.part == Part::Label || element.part == Part::Grip;
    return isName ? area.united(m_measures.labelArea()) : area;
}

QList<ListElement> ScaleRowWidget::elements() const {
    QList<ListElement> all{{Part::Label, m_paletteId, m_scale.id(), {}}};
    for (const PaletteSwatch& swatch : m_scale.swatches())
        all.append({Part::Swatch, m_paletteId, m_scale.id(), swatch.id()});
    all.append({Part::AddSwatch, m_paletteId, m_scale.id(), {}});
    return all;
}

bool ScaleRowWidget::isDraggedAway(QUuid swatchId) const {
    const auto& dragging = m_model.drag().dragging();
    const auto* swatch =
        dragging ? std::get_if<PaletteDragController::SwatchItem>(&*dragging) : nullptr;
    return swatch && swatch->swatchId == swatchId;
}

// Painting

void ScaleRowWidget::paintLabel(QPainter& painter) const {
    const QRectF label = m_measures.labelArea();
    const bool isPointedAt = isHovered(Part::Label) || isHovered(Part::Grip);
    if (isPointedAt && !m_model.drag().isDragging()) {
        fillRounded(painter, pillArea(), metrics::radiusControl, theme().fillHover);
        drawIcon(painter, Icon::Grip, theme().textSecondary, gripArea().center(),
                 metrics::iconMenu);
    }
    const QFont font = textFont(m_isDropTarget ? TextStyle::Strong : TextStyle::Body);
    painter.setPen(m_isDropTarget ? theme().accentBase : theme().textPrimary);
    drawWords(painter, font, label.adjusted(0.0, 0.0, -pillPadding, 0.0), m_scale.name());
    if (!areaOf(marks().focused).isEmpty() && marks().focused.part == Part::Label)
        drawFocusRing(painter, pillArea().adjusted(metrics::focusReach, 0, 0, 0),
                      metrics::radiusControl, theme());
}

void ScaleRowWidget::paintSwatch(QPainter& painter, const PaletteSwatch& swatch) {
    ++m_paintedSwatches;
    const ListElement own{Part::Swatch, m_paletteId, m_scale.id(), swatch.id()};
    const QRectF area = slotArea(swatch.id());
    const double opacity = painter.opacity();
    if (isDraggedAway(swatch.id()))
        painter.setOpacity(opacity * metrics::draggedOriginOpacity);
    QRectF drawn = area;
    if (marks().pressed == own) {
        const double inset = area.width() * (1.0 - metrics::swatchPressedScale) / 2.0;
        drawn.adjust(inset, inset, -inset, -inset);
    }
    drawSwatch(painter, drawn, swatch, m_model.isFavorite(swatch.id()), theme());
    painter.setOpacity(opacity);
    constexpr double reach = ringGap + ringWidth;
    if (marks().focused == own)
        drawFocusRing(painter, area, metrics::radiusCell, theme());
    else if (marks().hovered == own && !m_model.drag().isDragging())
        strokeInside(painter, area.adjusted(-reach, -reach, reach, reach),
                     metrics::radiusCell + reach, ringWidth, theme().inkBase);
}

void ScaleRowWidget::paintAddButton(QPainter& painter) const {
    const QRectF area = slotArea(addSlot);
    const ListElement own{Part::AddSwatch, m_paletteId, m_scale.id(), {}};
    if (marks().pressed == own)
        fillRounded(painter, area, metrics::radiusCell, theme().fillPressed);
    else if (marks().hovered == own)
        fillRounded(painter, area, metrics::radiusCell, theme().fillHover);
    strokeEdge(painter, area, metrics::radiusCell, theme().lineEdge);
    const int icon = std::min(metrics::icon, int(m_measures.swatchSide) - metrics::space4);
    drawIcon(painter, Icon::Add,
             marks().hovered == own ? theme().textPrimary : theme().textSecondary, area.center(),
             icon);
    if (marks().focused == own)
        drawFocusRing(painter, area, metrics::radiusCell, theme());
}

void ScaleRowWidget::paint(QPainter& painter, const QRegion& region) {
    if (m_isDropTarget) {
        painter.fillRect(rect(), theme().accentFaint);
        fillRounded(painter,
                    QRectF(0.0, metrics::space4, metrics::tickWidth, height() - metrics::space8),
                    metrics::tickRadius, theme().accentBase);
    }
    const auto shows = [&region](const QRectF& area, double reach = 0.0) {
        return region.intersects(area.adjusted(-reach, -reach, reach, reach).toAlignedRect());
    };
    // The ring of a swatch ends where its neighbours begin.
    const auto ringReach = [this](const QUuid& swatchId) {
        const bool isMarked =
            marks().hovered.swatchId == swatchId || marks().focused.swatchId == swatchId;
        return isMarked ? double(metrics::focusReach) : 0.0;
    };
    if (shows(m_measures.labelArea().united(pillArea())))
        paintLabel(painter);
    if (m_phantom && shows(slotArea(phantomSlot)))
        drawPhantom(painter, slotArea(phantomSlot), theme());
    for (const PaletteSwatch& swatch : m_scale.swatches()) {
        if (shows(slotArea(swatch.id()), ringReach(swatch.id())))
            paintSwatch(painter, swatch);
    }
    if (shows(slotArea(addSlot), metrics::focusReach))
        paintAddButton(painter);
}

} // namespace dropshade
