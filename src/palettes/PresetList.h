// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "palettes/PresetPicker.h"
#include "widgets/Look.h"

#include <QList>
#include <QWidget>

class QAbstractButton;

namespace dropshade {

/// The presets, one selected: a name and a strip of chips each. Of a long list some rows are in
/// view, and the others where it scrolls to; the arrow keys go through all.
class PresetList : public QWidget {
    Q_OBJECT

public:
    /// `picker` must outlive this object.
    PresetList(const Look& look, PresetPicker& picker, QWidget* parent);

    /// The rows from the first to the last, those out of view as well.
    [[nodiscard]] const QList<QAbstractButton*>& rows() const { return m_rows; }

Q_SIGNALS:
    /// A double click, or the return key.
    void chosen();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void addRow(const Palette& preset, QWidget& column);

    const Look& m_look;
    PresetPicker& m_picker;
    QList<QAbstractButton*> m_rows;
};

} // namespace dropshade
