// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/Look.h"

#include <QPointer>
#include <QTimer>
#include <QWidget>

namespace dropshade {

/// The plate with a control's `toolTip` beneath the pointer. It goes with the pointer, with a key
/// or click, or after a while.
class ToolTip : public QWidget {
    Q_OBJECT

public:
    /// Shows `control.toolTip()` as plates from now on.
    static void installOn(QWidget& control, const Look& look);

    ToolTip(const Look& look, const QString& text, QWidget* owner);

    /// Beneath `pointer`, in the coordinates of the screen, and wholly on that screen.
    void showAt(const QPoint& pointer);

    [[nodiscard]] const QString& text() const { return m_text; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    const Look& m_look;
    QString m_text;
    QTimer m_end;
};

} // namespace dropshade
