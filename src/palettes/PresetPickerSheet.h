// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "palettes/PresetPicker.h"
#include "widgets/Sheet.h"

#include <memory>

namespace dropshade {

class PresetList;

/// The sheet in which the user picks a preset and names its copy.
class PresetPickerSheet : public Sheet {
    Q_OBJECT

public:
    PresetPickerSheet(const Look& look, QWidget& host, std::unique_ptr<PresetPicker> picker);
    ~PresetPickerSheet() override;

private:
    void build(const Look& look);
    void add();

    std::unique_ptr<PresetPicker> m_picker;
};

/// The presets, one selected: a name and a strip of chips each.
class PresetList : public QWidget {
    Q_OBJECT

public:
    PresetList(const Look& look, PresetPicker& picker, QWidget* parent);

    [[nodiscard]] QSize sizeHint() const override;

Q_SIGNALS:
    void selectionDidChange();
    /// A double click.
    void chosen();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;

private:
    [[nodiscard]] qsizetype selected() const;
    [[nodiscard]] qsizetype rowAt(const QPointF& point) const;
    [[nodiscard]] QRectF rowArea(qsizetype row) const;
    [[nodiscard]] int rowHeight() const;
    void select(qsizetype row);
    void hover(qsizetype row);
    void paintRow(QPainter& painter, qsizetype row) const;

    const Look& m_look;
    PresetPicker& m_picker;
    QList<QList<PaletteSwatch>> m_chips;
    qsizetype m_hovered = -1;
};

} // namespace dropshade
