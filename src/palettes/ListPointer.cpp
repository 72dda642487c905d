// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "palettes/ListPointer.h"

#include "palettes/SwatchPainting.h"
#include "widgets/Metrics.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QDrag>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

namespace dropshade {
namespace {

using Part = ListElement::Part;

constexpr std::chrono::milliseconds scrollStep{16};
constexpr int scrollEdge = 32;
/// Points a step at the very edge.
constexpr double scrollMost = 14.0;
/// A pointer that slips over the border is still arranging.
constexpr int windowSlack = 24;

Qt::CursorShape cursorOver(Part part) {
    switch (part) {
    case Part::Grip:
        return Qt::OpenHandCursor;
    case Part::Swatch:
    case Part::Label:
        return Qt::PointingHandCursor;
    default:
        return Qt::ArrowCursor;
    }
}

bool canBeDragged(Part part) {
    return part == Part::Header || part == Part::Grip || part == Part::Swatch;
}

} // namespace

ListPointer::ListPointer(PaletteList& list, ListActions& actions, Scheduler& scheduler,
                         MimeData mimeData)
    : QObject(&list), m_list(list), m_actions(actions), m_mimeData(std::move(mimeData)),
      m_gesture(scheduler) {
    list.installEventFilter(this);
    m_scroll.setInterval(scrollStep);
    connect(&m_scroll, &QTimer::timeout, this, &ListPointer::scrollNearEdge);
    connect(&list, &PaletteList::rowsDidMove, this, &ListPointer::hoverAgain);
    connect(&m_gesture, &DragGesture::changed, this, &ListPointer::dragChanged);
    connect(&m_gesture, &DragGesture::ended, this, [this] { m_list.model().drag().end(); });
    // What is dragged may be deleted by another machine meanwhile.
    connect(&list.model(), &PalettesModel::contentDidChange, this, [this] {
        if (m_gesture.isDragging() && !m_list.model().palette(m_pressed.paletteId))
            cancel();
    });
}

ListPointer::~ListPointer() = default;

bool ListPointer::isDragging() const {
    return m_gesture.isDragging() || m_isDraggingOut;
}

bool ListPointer::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        press(*static_cast<QMouseEvent*>(event));
        return true;
    case QEvent::MouseMove:
        move(*static_cast<QMouseEvent*>(event));
        return true;
    case QEvent::MouseButtonRelease:
        release(*static_cast<QMouseEvent*>(event));
        return true;
    case QEvent::Enter:
        hover(static_cast<QEnterEvent*>(event)->position());
        break;
    case QEvent::Leave:
        leave();
        break;
    case QEvent::Hide:
        cancel();
        leave();
        break;
    case QEvent::UngrabMouse:
        cancel();
        break;
    case QEvent::ContextMenu: {
        const auto& menu = *static_cast<QContextMenuEvent*>(event);
        if (menu.reason() != QContextMenuEvent::Mouse)
            break;
        m_actions.showMenu(m_list.elementAt(menu.pos()), menu.globalPos());
        return true;
    }
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

void ListPointer::hover(const QPointF& point) {
    m_pointer = m_list.mapToGlobal(point);
    const ListElement element = m_list.elementAt(point);
    m_list.setHovered(element, point);
    m_list.model().hover().setHint(ListActions::hint(element));
    const QString help = ListActions::toolTip(element);
    m_list.setToolTip(help.isEmpty() ? m_list.elidedNameOf(element) : help);
    m_list.setCursor(cursorOver(element.part));
}

/// The pointer stands still, and other rows come under it.
void ListPointer::hoverAgain() {
    if (m_gesture.isDragging())
        return;
    if (m_pointer)
        hover(m_list.mapFromGlobal(*m_pointer));
    else
        leave();
}

void ListPointer::leave() {
    m_pointer.reset();
    m_list.setHovered({}, QPointF(-1.0, -1.0));
    m_list.model().hover().setHint(std::nullopt);
}

void ListPointer::press(const QMouseEvent& event) {
    Q_EMIT pressed();
    const QPointF point = event.position();
    hover(point);
    if (event.button() != Qt::LeftButton)
        return;
    const ListElement element = m_list.elementAt(point);
    if (event.modifiers().testFlag(Qt::ControlModifier)) {
        m_actions.showMenu(element, event.globalPosition().toPoint());
        return;
    }
    m_pressed = element;
    m_list.setPressed(element);
    m_location = point;
    if (!canBeDragged(element.part))
        return;
    m_list.refreshDragFrames(element.paletteId);
    m_gesture.press(point);
}

void ListPointer::move(const QMouseEvent& event) {
    if (!event.buttons().testFlag(Qt::LeftButton)) {
        // The button came up where nobody told us.
        cancel();
        hover(event.position());
        return;
    }
    m_location = event.position();
    m_gesture.move(m_location);
    if (m_gesture.isDragging() && m_pressed.part == Part::Swatch && isOutOfWindow())
        dragOut();
}

void ListPointer::dragChanged(const DragValue& value) {
    PaletteDragController& drag = m_list.model().drag();
    if (!drag.isDragging()) {
        m_list.setPressed({});
        m_list.setCursor(Qt::ClosedHandCursor);
    }
    switch (m_pressed.part) {
    case Part::Header:
        drag.paletteDragChanged(value, m_pressed.paletteId);
        break;
    case Part::Grip:
        drag.scaleDragChanged(m_pressed.paletteId, m_pressed.scaleId, value);
        break;
    case Part::Swatch:
        drag.swatchDragChanged(m_pressed.paletteId, m_pressed.scaleId, m_pressed.swatchId, value);
        m_list.model().hover().setSwatch(m_list.model().swatch(m_pressed.path()));
        break;
    default:
        break;
    }
    if (!m_scroll.isActive())
        m_scroll.start();
}

void ListPointer::endGesture() {
    m_scroll.stop();
    const bool isHeader = m_pressed.part == Part::Header;
    const bool isGrip = m_pressed.part == Part::Grip;
    m_gesture.end(isHeader ? headerClickPause
                  : isGrip ? labelClickPause
                           : std::chrono::milliseconds(0));
    m_pressed = {};
    m_list.setPressed({});
}

void ListPointer::cancel() {
    if (m_gesture.isPressed() || !m_pressed.isNone())
        endGesture();
}

void ListPointer::release(const QMouseEvent& event) {
    if (event.button() != Qt::LeftButton)
        return;
    const ListElement pressed = m_pressed;
    const bool wasDrag = m_gesture.isDragging();
    endGesture();
    hover(event.position());
    const bool isClick = !wasDrag && !pressed.isNone() && m_gesture.allowsClick() &&
                         m_list.elementAt(event.position()) == pressed;
    if (isClick)
        m_actions.activate(pressed);
}

void ListPointer::scrollNearEdge() {
    const QRect view = m_list.view();
    const double above = view.top() + scrollEdge - m_location.y();
    const double below = m_location.y() - (view.bottom() - scrollEdge);
    const double depth = std::min(std::max(above, below) / scrollEdge, 1.0);
    if (depth <= 0.0)
        return;
    const int step = qRound(scrollMost * depth) * (above > 0.0 ? -1 : 1);
    const int before = m_list.pos().y();
    m_list.scrollBy(step);
    // The pointer stands still on the screen, and so moves over the list.
    const int scrolled = before - m_list.pos().y();
    if (scrolled == 0)
        return;
    m_location.ry() += scrolled;
    m_gesture.move(m_location);
}

bool ListPointer::isOutOfWindow() const {
    const QRect window = m_list.window()->frameGeometry();
    const QPoint point = m_list.mapToGlobal(m_location.toPoint());
    return !window.adjusted(-windowSlack, -windowSlack, windowSlack, windowSlack).contains(point);
}

void ListPointer::dragOut() {
    const auto swatch = m_list.model().swatch(m_pressed.path());
    // Nothing of the arranging remains: the user takes a copy elsewhere.
    m_list.model().drag().abandon();
    endGesture();
    if (!swatch)
        return;
    m_isDraggingOut = true;
    auto* drag = new QDrag(&m_list);
    drag->setMimeData(m_mimeData(*swatch));
    const double ratio = m_list.devicePixelRatioF();
    const double side = m_list.rows().measures().swatchSide;
    QPixmap picture((QSizeF(side, side) * ratio).toSize());
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    drawSwatch(painter, QRectF(0.0, 0.0, side, side), *swatch, false, Theme::of({}));
    painter.end();
    drag->setPixmap(picture);
    drag->setHotSpot(QPoint(int(side / 2.0), int(side / 2.0)));
    drag->exec(Qt::CopyAction);
    m_isDraggingOut = false;
}

} // namespace dropshade
