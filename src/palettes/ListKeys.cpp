// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "palettes/ListKeys.h"

#include <QContextMenuEvent>
#include <QKeyEvent>

#include <algorithm>
#include <limits>

namespace dropshade {
namespace {

using Part = ListElement::Part;
using Direction = PaletteMoves::Direction;

} // namespace

ListKeys::ListKeys(PaletteList& list, ListActions& actions, PaletteMoves& moves)
    : QObject(&list), m_list(list), m_actions(actions), m_moves(moves) {
    list.setFocusPolicy(Qt::StrongFocus);
    list.installEventFilter(this);
    list.setTabHandler([this](bool next) { return tab(next); });
}

ListElement ListKeys::current() const {
    return m_list.rowOf(m_current) ? m_current : ListElement();
}

void ListKeys::setCurrent(const ListElement& element) {
    m_current = element;
    m_list.setFocused(element);
    m_list.reveal(element);
    const auto swatch = m_list.model().swatch(element.path());
    m_list.model().hover().setSwatch(swatch);
}

void ListKeys::hideRing() {
    m_list.setFocused({});
}

bool ListKeys::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
    case QEvent::KeyPress:
        if (press(*static_cast<QKeyEvent*>(event)))
            return true;
        break;
    case QEvent::ContextMenu:
        if (static_cast<QContextMenuEvent*>(event)->reason() == QContextMenuEvent::Keyboard) {
            m_actions.showMenu(current(), menuPoint());
            return true;
        }
        break;
    case QEvent::FocusIn: {
        const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
        if (reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason)
            enter(reason == Qt::BacktabFocusReason);
        break;
    }
    case QEvent::FocusOut:
        // What opens over the list belongs to what has the ring.
        if (static_cast<QFocusEvent*>(event)->reason() != Qt::PopupFocusReason)
            hideRing();
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

void ListKeys::enter(bool fromEnd) {
    const auto& rows = m_list.rows().rows();
    if (rows.isEmpty())
        return;
    if (current().isNone() || !m_list.marks().focused.isNone())
        goToRow(fromEnd ? rows.size() - 1 : 0, 0);
    else
        setCurrent(current());
}

bool ListKeys::tab(bool next) {
    const auto row = m_list.rowOf(m_current);
    if (row)
        return goToRow(*row + (next ? 1 : -1), 0);
    if (next)
        enter(false);
    return next && !current().isNone();
}

bool ListKeys::goToRow(qsizetype row, qsizetype place) {
    if (row < 0 || row >= m_list.rows().rows().size())
        return false;
    const QList<ListElement> elements = m_list.elementsOf(row);
    setCurrent(elements.at(std::clamp<qsizetype>(place, 0, elements.size() - 1)));
    return true;
}

qsizetype ListKeys::placeInRow() const {
    const auto row = m_list.rowOf(m_current);
    return row ? std::max<qsizetype>(0, m_list.elementsOf(*row).indexOf(m_current)) : 0;
}

void ListKeys::stepRow(int step) {
    if (const auto row = m_list.rowOf(m_current))
        goToRow(*row + step, placeInRow());
    else
        enter(false);
}

void ListKeys::stepWithin(int step) {
    const auto row = m_list.rowOf(m_current);
    if (!row) {
        enter(false);
        return;
    }
    // A header opens and closes like a branch of a tree.
    if (m_current.part == Part::Header &&
        m_list.model().isExpanded(m_current.paletteId) == (step < 0)) {
        m_list.model().toggleExpanded(m_current.paletteId);
        return;
    }
    const qsizetype place = placeInRow() + step;
    if (place >= 0)
        goToRow(*row, place);
}

QPoint ListKeys::menuPoint() const {
    return m_list.mapToGlobal(m_list.areaOf(current()).center().toPoint());
}

bool ListKeys::moveByAlt(int key) {
    const ListElement at = current();
    const bool isVertical = key == Qt::Key_Up || key == Qt::Key_Down;
    const Direction direction =
        key == Qt::Key_Down || key == Qt::Key_Right ? Direction::Forward : Direction::Backward;
    if (at.part == Part::Swatch) {
        if (!isVertical)
            m_moves.moveSwatch(at.path(), direction);
        else if (const auto moved = m_moves.moveSwatchToScale(at.path(), direction))
            m_current.scaleId = moved->scaleId;
    } else if (isVertical && at.part == Part::Label) {
        m_moves.moveScale(at.paletteId, at.scaleId, direction);
    } else if (isVertical && at.part == Part::Header) {
        m_moves.movePalette(at.paletteId, direction);
    }
    setCurrent(m_current);
    return true;
}

bool ListKeys::press(const QKeyEvent& event) {
    const int key = event.key();
    const bool isArrow =
        key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_Left || key == Qt::Key_Right;
    if (isArrow && event.modifiers().testFlag(Qt::AltModifier))
        return moveByAlt(key);
    if (event.matches(QKeySequence::Copy)) {
        m_list.model().copySwatch(current().path());
        return true;
    }
    return pressPlain(event);
}

bool ListKeys::pressPlain(const QKeyEvent& event) {
    const bool holdsControl = event.modifiers().testFlag(Qt::ControlModifier);
    switch (event.key()) {
    case Qt::Key_Up:
        stepRow(-1);
        return true;
    case Qt::Key_Down:
        stepRow(1);
        return true;
    case Qt::Key_Left:
        stepWithin(-1);
        return true;
    case Qt::Key_Right:
        stepWithin(1);
        return true;
    case Qt::Key_Home:
        goToRow(holdsControl ? 0 : m_list.rowOf(m_current).value_or(0), 0);
        return true;
    case Qt::Key_End:
        goToRow(holdsControl ? m_list.rows().rows().size() - 1
                             : m_list.rowOf(m_current).value_or(0),
                std::numeric_limits<qsizetype>::max());
        return true;
    case Qt::Key_PageUp:
        m_list.scrollBy(-m_list.view().height());
        return true;
    case Qt::Key_PageDown:
        m_list.scrollBy(m_list.view().height());
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        if (current().part == Part::Options)
            m_actions.showMenu(current(), menuPoint());
        else
            m_actions.activate(current());
        return true;
    case Qt::Key_F2:
        m_actions.edit(current());
        return true;
    case Qt::Key_Delete:
        m_actions.remove(current(), !event.modifiers().testFlag(Qt::ShiftModifier));
        return true;
    default:
        return false;
    }
}

} // namespace dropshade
