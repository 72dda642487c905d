// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "palettes/SpringMotion.h"
#include "widgets/Look.h"

#include <QPixmap>
#include <QWidget>

namespace dropshade {

/// What floats under the pointer during a drag: it lifts off by a spring, follows the pointer, and
/// when it is put down it springs to its new place and is gone.
class DragImage : public QWidget {
    Q_OBJECT

public:
    /// What is lifted: a colour, or a whole row.
    enum class Kind { Swatch, Row };

    DragImage(const Look& look, QWidget* list);

    /// Lifts `picture` off a place of that size; what was on its way down is gone.
    void lift(Kind kind, const QPixmap& picture, const QSizeF& size);
    /// Its middle, in the coordinates of the list.
    void moveCenter(const QPointF& center);
    /// Puts it down there.
    void settle(const QPointF& center);
    /// Takes it away at once.
    void vanish();

    [[nodiscard]] bool isSettling() const { return m_isSettling; }
    /// False where all has come to rest.
    bool advance(std::chrono::duration<double> time);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void arrange();
    [[nodiscard]] double scale() const;

    const Look& m_look;
    Kind m_kind = Kind::Swatch;
    QPixmap m_picture;
    QSizeF m_size;
    bool m_isSettling = false;
    SpringMotion m_lift;
    SpringMotion m_x;
    SpringMotion m_y;
};

} // namespace dropshade
