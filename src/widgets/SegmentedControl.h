// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/Look.h"

#include <QList>
#include <QWidget>

class QAbstractButton;

namespace dropshade {

/// A few choices side by side, one of them selected. Tab reaches the selected one, arrow keys move
/// the selection.
class SegmentedControl : public QWidget {
    Q_OBJECT

public:
    SegmentedControl(const Look& look, const QString& name, const QStringList& titles,
                     QWidget* parent = nullptr);

    [[nodiscard]] int currentIndex() const;

    /// Emits nothing.
    void setCurrentIndex(int index);

    void setSegmentToolTip(const QString& text);

Q_SIGNALS:
    /// The user chose another segment.
    void picked(int index);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const Look& m_look;
    QList<QAbstractButton*> m_segments;
};

} // namespace dropshade
