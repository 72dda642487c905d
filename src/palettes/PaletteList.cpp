// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "palettes/PaletteList.h"

#include "palettes/PaletteHeaderWidget.h"
#include "palettes/PaletteSearch.h"
#include "palettes/ScaleRowWidget.h"
#include "palettes/SwatchPainting.h"
#include "widgets/Metrics.h"
#include "widgets/TypeScale.h"

#include <QEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>

#include <algorithm>
#include <cmath>
#include <utility>

namespace dropshade {
namespace {

using Part = ListElement::Part;

constexpr std::chrono::milliseconds frameTime{16};
/// A program that was held up goes on from where it is.
constexpr std::chrono::duration<double> longestFrame{0.05};

} // namespace

PaletteList::PaletteList(const Look& look, PalettesModel& model, QScrollArea& scrollArea)
    : m_look(look), m_model(model), m_scrollArea(scrollArea),
      m_dragImage(new DragImage(look, this)) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);
    scrollArea.setWidget(this);
    scrollArea.setWidgetResizable(false);
    scrollArea.viewport()->installEventFilter(this);
    m_frames.setTimerType(Qt::PreciseTimer);
    m_frames.setInterval(frameTime);
    connect(&m_frames, &QTimer::timeout, this, &PaletteList::advance);
    const auto springs = [this] { arrange(Change::Springs); };
    const auto jumps = [this] { arrange(Change::Jumps); };
    connect(&model, &PalettesModel::contentDidChange, this, springs);
    connect(&model, &PalettesModel::expansionDidChange, this, springs);
    connect(&model, &PalettesModel::favoritesDidChange, this, springs);
    connect(&model, &PalettesModel::compactDidChange, this, jumps);
    connect(&model.settings(), &AppSettings::swatchSizeDidChange, this, jumps);
    connect(&look, &Look::didChange, this, jumps);
    connect(&model.drag(), &PaletteDragController::draggingDidChange, this,
            &PaletteList::draggingChanged);
    connect(&model.drag(), &PaletteDragController::cursorDidChange, this,
            &PaletteList::moveDragImage);
}

PaletteList::~PaletteList() = default;

// Arranging

ListMeasures PaletteList::measures() const {
    return {double(m_scrollArea.viewport()->width()),
            double(swatchPoints(m_model.settings().swatchSize())), m_model.isCompact(),
            double(lineHeight(TextStyle::Body))};
}

QRect PaletteList::view() const {
    return {-pos(), m_scrollArea.viewport()->size()};
}

QSize PaletteList::sizeHint() const {
    return {m_scrollArea.viewport()->width(), int(std::ceil(m_layout.height()))};
}

bool PaletteList::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize && watched == m_scrollArea.viewport())
        arrange(Change::Jumps);
    return QWidget::eventFilter(watched, event);
}

void PaletteList::moveEvent(QMoveEvent* event) {
    QWidget::moveEvent(event);
    syncRows(Change::Jumps, Fill::New);
}

double PaletteList::shownTop(const ListRow& row) const {
    const auto motion = m_motions.constFind(keyOf(row));
    return motion == m_motions.cend() ? row.top : motion->top.value();
}

void PaletteList::arrange(Change change) {
    if (m_look.duration(frameTime).count() == 0 || !isVisible())
        change = Change::Jumps;
    QHash<Key, double> formerTops;
    if (change == Change::Springs) {
        for (const ListRow& row : m_layout.rows())
            formerTops.insert(keyOf(row), shownTop(row));
    }
    m_layout = PaletteListLayout(m_model, measures());
    followMotions(formerTops, change);
    const QSize room = m_scrollArea.viewport()->size();
    resize(room.width(), std::max(room.height(), int(std::ceil(m_layout.height()))));
    for (const Key& key : m_widgets.keys()) {
        const auto isKey = [&key](const ListRow& row) { return keyOf(row) == key; };
        const auto& rows = m_layout.rows();
        if (std::none_of(rows.cbegin(), rows.cend(), isKey))
            delete m_widgets.take(key);
    }
    syncRows(change, Fill::All);
    if (const auto& item = m_model.drag().dragging()) {
        refreshDragFrames(std::visit([](const auto& dragged) { return dragged.paletteId; }, *item));
        moveDragImage();
    } else if (m_dragImage->isSettling()) {
        settleDragImage();
    }
    update();
    if (change == Change::Springs)
        startMoving();
}

/// Rows that were elsewhere a moment ago and can be seen on their way start from there.
void PaletteList::followMotions(const QHash<Key, double>& formerTops, Change change) {
    QHash<Key, Motion> motions;
    if (change == Change::Springs) {
        const QRect seen = view();
        for (qsizetype index = 0; index < m_layout.rows().size(); ++index) {
            const ListRow& row = m_layout.rows().at(index);
            const auto former = formerTops.constFind(keyOf(row));
            if (former == formerTops.cend() || *former == row.top)
                continue;
            const double top = std::min(*former, row.top);
            const double bottom = std::max(*former, row.top) + row.height;
            if (bottom < seen.top() || top > seen.bottom())
                continue;
            const auto [response, fraction] = metrics::reorder;
            const auto known = m_motions.constFind(keyOf(row));
            Motion motion = known == m_motions.cend()
                                ? Motion{index, SpringMotion(*former, response, fraction)}
                                : Motion{index, known->top};
            motion.top.setTarget(row.top);
            motions.insert(keyOf(row), motion);
        }
    }
    m_motions = motions;
}

QSet<qsizetype> PaletteList::wantedRows() const {
    const QRect seen = view();
    QSet<qsizetype> wanted;
    const auto range = m_layout.rowsBetween(seen.top(), seen.bottom() + 1);
    for (qsizetype index = range.first; index < range.end; ++index)
        wanted.insert(index);
    for (const Motion& motion : m_motions) {
        const ListRow& row = m_layout.rows().at(motion.row);
        const double top = motion.top.value();
        if (top + row.height >= seen.top() && top <= seen.bottom())
            wanted.insert(motion.row);
    }
    return wanted;
}

void PaletteList::syncRows(Change change, Fill fill) {
    const QSet<qsizetype> wanted = wantedRows();
    QSet<Key> keys;
    for (const qsizetype index : wanted)
        keys.insert(keyOf(m_layout.rows().at(index)));
    for (const Key& key : m_widgets.keys()) {
        if (!keys.contains(key))
            delete m_widgets.take(key);
    }
    QList<qsizetype> inOrder(wanted.cbegin(), wanted.cend());
    std::sort(inOrder.begin(), inOrder.end());
    for (const qsizetype index : inOrder) {
        const ListRow& row = m_layout.rows().at(index);
        ListRowWidget*& widget = m_widgets[keyOf(row)];
        const bool isNew = widget == nullptr;
        if (isNew)
            widget = makeRow(row.kind);
        if (isNew || fill == Fill::All)
            fillRow(row, *widget, isNew ? Change::Jumps : change);
        placeRow(row, *widget);
        widget->show();
        // What slides down comes out from under what is above it.
        if (change == Change::Springs)
            widget->raise();
    }
    m_dragImage->raise();
}

ListRowWidget* PaletteList::makeRow(ListRow::Kind kind) {
    switch (kind) {
    case ListRow::Kind::Header:
        return new PaletteHeaderWidget(m_look, this);
    case ListRow::Kind::Scale:
        return new ScaleRowWidget(m_look, m_model, this);
    case ListRow::Kind::AddScale:
        break;
    }
    return new AddScaleWidget(m_look, this);
}

bool PaletteList::isLifted(const ListRow& row) const {
    const auto& item = m_model.drag().isDragging() ? m_model.drag().dragging() : m_lifted;
    if (!item)
        return false;
    if (const auto* palette = std::get_if<PaletteDragController::PaletteItem>(&*item))
        return row.paletteId == palette->paletteId;
    const auto* scale = std::get_if<PaletteDragController::ScaleItem>(&*item);
    return scale && row.kind == ListRow::Kind::Scale && row.scaleId == scale->scaleId;
}

/// The list may be asked for a row between a change and its own arrangement, so that what is gone
/// leaves the widget as it is.
void PaletteList::fillRow(const ListRow& row, ListRowWidget& widget, Change change) {
    const auto palette = itemWithId(m_model.shownPalettes(), row.paletteId);
    if (!palette)
        return;
    if (auto* header = qobject_cast<PaletteHeaderWidget*>(&widget)) {
        header->display(*palette, m_model.isExpanded(palette->id()), m_layout.measures(),
                        row.paletteIndex > 0 ? PaletteHeaderWidget::Line::Above
                                             : PaletteHeaderWidget::Line::None);
    } else if (auto* scaleRow = qobject_cast<ScaleRowWidget*>(&widget)) {
        const auto scale = itemWithId(m_model.shownScales(*palette), row.scaleId);
        if (!scale)
            return;
        scaleRow->display(palette->id(), *scale, m_layout.measures(),
                          change == Change::Springs ? ScaleRowWidget::Motion::Springs
                                                    : ScaleRowWidget::Motion::Jumps);
        scaleRow->setDropTarget(m_model.drag().dropHighlightScaleId() == row.scaleId);
    } else if (auto* add = qobject_cast<AddScaleWidget*>(&widget)) {
        add->display(palette->id(), m_layout.measures());
    }
    widget.setLifted(isLifted(row));
    widget.setMarks(m_marks);
}

void PaletteList::placeRow(const ListRow& row, ListRowWidget& widget) {
    const auto* header = qobject_cast<const PaletteHeaderWidget*>(&widget);
    const int line = header ? header->lineHeight() : 0;
    widget.setGeometry(0, qRound(shownTop(row)) - line, width(), int(std::ceil(row.height)) + line);
}

void PaletteList::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    for (const QRect& area : event->region())
        painter.fillRect(area, m_look.theme().surfaceWindow);
    const double margin = m_layout.measures().margin();
    if (m_layout.height() > 0.0)
        painter.fillRect(QRectF(margin, m_layout.height() - 1.0, width() - 2.0 * margin, 1.0),
                         m_look.theme().lineHairline);
}

bool PaletteList::focusNextPrevChild(bool next) {
    return (m_tabHandler && m_tabHandler(next)) || QWidget::focusNextPrevChild(next);
}

// Elements

ListRowWidget* PaletteList::widgetOf(qsizetype index) {
    const ListRow& row = m_layout.rows().at(index);
    if (ListRowWidget* shown = m_widgets.value(keyOf(row)))
        return shown;
    m_unseenRow.reset(makeRow(row.kind));
    m_unseenRow->hide();
    fillRow(row, *m_unseenRow, Change::Jumps);
    placeRow(row, *m_unseenRow);
    return m_unseenRow.get();
}

std::optional<qsizetype> PaletteList::rowOf(const ListElement& element) const {
    if (element.isNone())
        return std::nullopt;
    if (element.part == Part::AddScale) {
        const auto header = m_layout.rowOf(element.paletteId);
        const bool hasButton = header && *header + 1 < m_layout.rows().size() &&
                               m_layout.rows().at(*header + 1).kind == ListRow::Kind::AddScale;
        return hasButton ? std::optional(*header + 1) : std::nullopt;
    }
    return m_layout.rowOf(element.scaleId.isNull() ? element.paletteId : element.scaleId);
}

ListElement PaletteList::elementAt(const QPointF& point) const {
    const auto index = m_layout.rowAt(point.y());
    if (!index)
        return {};
    const ListRow& row = m_layout.rows().at(*index);
    const ListRowWidget* widget = m_widgets.value(keyOf(row));
    return widget ? widget->elementAt(point - QPointF(widget->pos())) : ListElement();
}

QRectF PaletteList::areaOf(const ListElement& element) {
    const auto index = rowOf(element);
    if (!index)
        return {};
    const ListRowWidget* widget = widgetOf(*index);
    const QRectF area = widget->areaOf(element);
    return area.isEmpty() ? area : area.translated(widget->pos());
}

QList<ListElement> PaletteList::elementsOf(qsizetype row) {
    return widgetOf(row)->elements();
}

QWidget* PaletteList::makeAnchor(const ListElement& element) {
    auto* anchor = new QWidget(this);
    anchor->setAttribute(Qt::WA_TransparentForMouseEvents);
    anchor->setGeometry(areaOf(element).toAlignedRect());
    anchor->lower();
    anchor->show();
    return anchor;
}

void PaletteList::scrollBy(int distance) {
    QScrollBar* bar = m_scrollArea.verticalScrollBar();
    bar->setValue(bar->value() + distance);
}

void PaletteList::reveal(const ListElement& element, Anchor anchor) {
    const auto index = rowOf(element);
    if (!index)
        return;
    const ListRow& row = m_layout.rows().at(*index);
    const QRect seen = view();
    const int top = int(row.top);
    const int bottom = int(std::ceil(row.top + row.height)) + metrics::space8;
    if (anchor == Anchor::Bottom || bottom > seen.bottom())
        scrollBy(bottom - seen.bottom());
    else if (top < seen.top())
        scrollBy(top - seen.top());
}

void PaletteList::applyMarks() {
    for (ListRowWidget* row : std::as_const(m_widgets))
        row->setMarks(m_marks);
}

void PaletteList::hoverRow(ScaleRowWidget* row, const QPointF& local) {
    if (m_hoveredRow && m_hoveredRow != row)
        m_hoveredRow->pointerLeft();
    m_hoveredRow = row;
    if (row)
        row->pointerMoved(local);
}

void PaletteList::setHovered(const ListElement& element, const QPointF& point) {
    const auto index = m_layout.rowAt(point.y());
    ListRowWidget* widget =
        index && !element.isNone() ? m_widgets.value(keyOf(m_layout.rows().at(*index))) : nullptr;
    hoverRow(qobject_cast<ScaleRowWidget*>(widget),
             widget ? point - QPointF(widget->pos()) : QPointF());
    if (m_marks.hovered == element)
        return;
    m_marks.hovered = element;
    applyMarks();
}

void PaletteList::setPressed(const ListElement& element) {
    m_marks.pressed = element;
    applyMarks();
}

void PaletteList::setFocused(const ListElement& element) {
    if (m_marks.focused == element)
        return;
    m_marks.focused = element;
    applyMarks();
    Q_EMIT focusedDidChange(element);
}

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
    if (!row || m_look.duration(frameTime).count() == 0) {
        m_dragImage->vanish();
        m_lifted.reset();
        return;
    }
    const ListRow& place = m_layout.rows().at(*row);
    const QPointF middle(width() / 2.0, place.top + place.height / 2.0);
    m_dragImage->settle(element.part == Part::Swatch ? areaOf(element).center() : middle);
}

// Moving

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
