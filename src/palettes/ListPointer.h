// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "palettes/DragGesture.h"
#include "palettes/ListActions.h"
#include "palettes/PaletteList.h"

#include <QMimeData>

#include <functional>

namespace dropshade {

/// The mouse over the list: hovering, clicks, menus and drags. A drag near the upper or lower edge
/// scrolls; a swatch that is taken out of the window goes on as a drag to other programs.
class ListPointer : public QObject {
    Q_OBJECT

public:
    /// What a swatch is for other programs.
    using MimeData = std::function<QMimeData*(const PaletteSwatch&)>;

    ListPointer(PaletteList& list, ListActions& actions, Scheduler& scheduler, MimeData mimeData);
    ~ListPointer() override;

    /// True while a drag in the list is running or a swatch is on its way to another program.
    [[nodiscard]] bool isDragging() const;

Q_SIGNALS:
    /// A button went down in the list.
    void pressed();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void press(const QMouseEvent& event);
    void move(const QMouseEvent& event);
    void release(const QMouseEvent& event);
    void leave();
    void hover(const QPointF& point);
    void hoverAgain();
    void dragChanged(const DragValue& value);
    void cancel();
    void endGesture();
    void scrollNearEdge();
    [[nodiscard]] bool isOutOfWindow() const;
    void dragOut();

    PaletteList& m_list;
    ListActions& m_actions;
    MimeData m_mimeData;
    DragGesture m_gesture;
    ListElement m_pressed;
    QPointF m_location;
    /// Where on the screen the pointer is, while it is over the list.
    std::optional<QPointF> m_pointer;
    QTimer m_scroll;
    bool m_isDraggingOut = false;
};

} // namespace dropshade
