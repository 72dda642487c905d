// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/Surface.h"

#include <QPointer>

namespace dropshade {

/// A small surface beside the control that it belongs to, without a beak and never over what it
/// changes. A click elsewhere, Escape, or `close` ends it. It deletes itself after that.
class Popover : public Surface {
    Q_OBJECT

public:
    enum class Side { Below, Beside };

    /// `anchor` is the control, which gets the keyboard back.
    Popover(const Look& look, QWidget& anchor);

    /// Opens on that side of `keepClear`, in the coordinates of the screen, level with the anchor;
    /// on another side where the screen has no room there.
    void open(Side side, const QRect& keepClear);

    /// The same beneath or beside the anchor alone.
    void open(Side side);

Q_SIGNALS:
    /// It has closed, in whatever way. Once, before it is deleted.
    void closed();

protected:
    void hideEvent(QHideEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QPointer<QWidget> m_anchor;
    bool m_wasClosed = false;
};

/// Where a surface of `size` goes: on `side` of `keepClear`, level with `anchor`; on the other side
/// of that axis, or on the other axis, where that is more of it in `room`.
[[nodiscard]] QPoint popoverPosition(const QSize& size, const QRect& anchor, const QRect& keepClear,
                                     const QRect& room, Popover::Side side);

} // namespace dropshade
