// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "palettes/ListActions.h"
#include "palettes/PaletteList.h"
#include "palettes/PaletteMoves.h"

class QKeyEvent;

namespace dropshade {

/// The keyboard in the list. Up and down go from row to row, left and right within one, Tab to the
/// next row and at last out of the list; Return does what a click does, and Alt with an arrow moves
/// what it is at.
class ListKeys : public QObject {
    Q_OBJECT

public:
    ListKeys(PaletteList& list, ListActions& actions, PaletteMoves& moves);

    /// Where the keyboard is; nothing where it isn't in the list or its place is gone.
    [[nodiscard]] ListElement current() const;
    void setCurrent(const ListElement& element);
    /// The pointer is at work: the ring goes.
    void hideRing();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool press(const QKeyEvent& event);
    bool pressPlain(const QKeyEvent& event);
    bool moveByAlt(int key);
    bool tab(bool next);
    void stepRow(int step);
    void stepWithin(int step);
    bool goToRow(qsizetype row, qsizetype place);
    void enter(bool fromEnd);
    [[nodiscard]] qsizetype placeInRow() const;
    [[nodiscard]] QPoint menuPoint() const;

    PaletteList& m_list;
    ListActions& m_actions;
    PaletteMoves& m_moves;
    ListElement m_current;
};

} // namespace dropshade
