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
    m_frames.setInterval(listFrameTime);
    connect(&m_frames, &QTimer::timeout, this, &PaletteList::advance);
    const auto springs = [this] { arrange(Change::Springs); };
    const auto jumps = [this] { arrange(Change::Jumps); };
    connect(&model, &PalettesModel::contentDidChange, this, springs);
    connect(&model, &PalettesModel::expansionDidChange, this, [this] { arrange(Change::Opens); });
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
    Q_EMIT rowsDidMove();
}

double PaletteList::shownTop(const ListRow& row) const {
    const auto motion = m_motions.constFind(keyOf(row));
    return motion == m_motions.cend() ? row.top : motion->top.value();
}

void PaletteList::arrange(Change change) {
    const bool opensOrCloses = change == Change::Opens;
    if (m_look.duration(listFrameTime).count() == 0 || !isVisible())
        change = Change::Jumps;
    QHash<Key, double> formerTops;
    for (const ListRow& row : m_layout.rows())
        formerTops.insert(keyOf(row), shownTop(row));
    // What scrolls meanwhile must not meet motions of rows that are elsewhere now.
    const QHash<Key, Motion> running = std::exchange(m_motions, {});
    const int formerView = view().top();
    m_layout = PaletteListLayout(m_model, measures());
    const QSize room = m_scrollArea.viewport()->size();
    resize(room.width(), std::max(room.height(), int(std::ceil(m_layout.height()))));
    if (opensOrCloses)
        keepOpenedHeader(formerTops, formerView);
    if (change != Change::Jumps)
        followMotions(formerTops, running, view().top() - formerView, change);
    for (const Key& key : m_widgets.keys()) {
        const auto isKey = [&key](const ListRow& row) { return keyOf(row) == key; };
        const auto& rows = m_layout.rows();
        if (std::none_of(rows.cbegin(), rows.cend(), isKey))
            removeRow(key);
    }
    syncRows(change, Fill::All);
    if (const auto& item = m_model.drag().dragging()) {
        refreshDragFrames(std::visit([](const auto& dragged) { return dragged.paletteId; }, *item));
        moveDragImage();
    } else if (m_dragImage->isSettling()) {
        settleDragImage();
    }
    update();
    if (change != Change::Jumps)
        startMoving();
    Q_EMIT rowsDidMove();
}

/// What closes above a palette that opens would take its header away from under the pointer, or out
/// of view. Its scales show a turn later, and only then there may be room to scroll.
void PaletteList::keepOpenedHeader(const QHash<Key, double>& formerTops, int formerView) {
    const auto opened = m_model.lastExpandedId();
    const auto row = opened ? m_layout.rowOf(*opened) : std::nullopt;
    if (!row || !m_model.isExpanded(*opened)) {
        m_openedHeaderAt.reset();
        return;
    }
    const ListRow& header = m_layout.rows().at(*row);
    const double former = formerTops.value(keyOf(header), header.top);
    const double wanted = m_openedHeaderAt.value_or(former - formerView);
    scrollBy(qRound(header.top - wanted) - view().top());
    m_openedHeaderAt = wanted;
    if (m_model.showsScales(*opened))
        m_openedHeaderAt.reset();
}

void PaletteList::removeRow(const Key& key) {
    ListRowWidget* row = m_widgets.take(key);
    if (row == m_hoveredRow)
        hoverRow(nullptr, {});
    delete row;
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
            removeRow(key);
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
        if (change != Change::Jumps)
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
                          change == Change::Jumps ? ScaleRowWidget::Motion::Jumps
                                                  : ScaleRowWidget::Motion::Springs);
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

QString PaletteList::elidedNameOf(const ListElement& element) const {
    const auto index = rowOf(element);
    const ListRowWidget* widget =
        index ? m_widgets.value(keyOf(m_layout.rows().at(*index))) : nullptr;
    return widget ? widget->elidedNameOf(element) : QString();
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

void PaletteList::hold(const ListElement& element) {
    m_isHeld = false;
    setHovered(element, areaOf(element).center());
    m_isHeld = true;
}

void PaletteList::letGo() {
    m_isHeld = false;
    Q_EMIT rowsDidMove();
}

void PaletteList::setHovered(const ListElement& element, const QPointF& point) {
    if (m_isHeld)
        return;
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

} // namespace dropshade
