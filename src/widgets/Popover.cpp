// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "widgets/Popover.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QScreen>

#include <algorithm>
#include <array>
#include <limits>

namespace dropshade {

namespace {

constexpr int gap = 8;

int within(int start, int length, int roomStart, int roomEnd) {
    return std::max(roomStart, std::min(start, roomEnd - length + 1));
}

} // namespace

QPoint popoverPosition(const QSize& size, const QRect& anchor, const QRect& keepClear,
                       const QRect& room, Popover::Side side) {
    const int level =
        within(anchor.center().y() - size.height() / 4, size.height(), room.top(), room.bottom());
    const int plumb = within(anchor.left(), size.width(), room.left(), room.right());
    const QPoint below(plumb, keepClear.bottom() + 1 + gap);
    const QPoint above(plumb, keepClear.top() - gap - size.height());
    const QPoint left(keepClear.left() - gap - size.width(), level);
    const QPoint right(keepClear.right() + 1 + gap, level);
    const auto order = side == Popover::Side::Below ? std::array{below, above, right, left}
                                                    : std::array{left, right, below, above};
    for (const QPoint& corner : order) {
        if (room.contains(QRect(corner, size)))
            return corner;
    }
    // Nowhere whole: on the screen all the same, where it covers least of what it changes.
    const auto covered = [&](const QPoint& corner) {
        const QRect shared = QRect(corner, size).intersected(keepClear);
        return shared.width() * shared.height();
    };
    QPoint best;
    int least = std::numeric_limits<int>::max();
    for (const QPoint& corner : order) {
        const QPoint inside(within(corner.x(), size.width(), room.left(), room.right()),
                            within(corner.y(), size.height(), room.top(), room.bottom()));
        if (covered(inside) < least) {
            best = inside;
            least = covered(inside);
        }
    }
    return best;
}

Popover::Popover(const Look& look, QWidget& anchor)
    : Surface(look, anchor.window(), Qt::Popup), m_anchor(&anchor) {
    setAttribute(Qt::WA_DeleteOnClose);
}

void Popover::open(Side side) {
    if (m_anchor)
        open(side, QRect(m_anchor->mapToGlobal(QPoint(0, 0)), m_anchor->size()));
}

void Popover::open(Side side, const QRect& keepClear) {
    if (!m_anchor)
        return;
    fit();
    const QRect anchor(m_anchor->mapToGlobal(QPoint(0, 0)), m_anchor->size());
    const QScreen* screen = QGuiApplication::screenAt(anchor.center());
    if (!screen)
        screen = m_anchor->screen();
    const QSize surface = content()->sizeHint();
    moveSurface(popoverPosition(surface, anchor, keepClear, screen->availableGeometry(), side));
    fadeIn();
}

void Popover::hideEvent(QHideEvent* event) {
    Surface::hideEvent(event);
    if (m_wasClosed)
        return;
    m_wasClosed = true;
    Q_EMIT closed();
}

void Popover::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape)
        close();
    else
        Surface::keyPressEvent(event);
}

} // namespace dropshade
