// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "convert/ColorPickerModel.h"
#include "convert/FormatRow.h"

#include <QList>
#include <QWidget>

class QVBoxLayout;

namespace dropshade {

/// Every format in its group, each with the colour's text. Tab reaches one row, arrow keys the
/// others.
class FormatList : public QWidget {
    Q_OBJECT

public:
    FormatList(const Look& look, ColorPickerModel& model, QWidget* parent = nullptr);

    /// Writes every row's text anew.
    void refresh();

    [[nodiscard]] FormatRow* row(ColorFormat format) const;
    [[nodiscard]] const QList<FormatRow*>& rows() const { return m_rows; }

private:
    void addGroup(const ColorFormatGroup& group, QVBoxLayout& column);
    void addError(QVBoxLayout& column);
    void moveFrom(int index, int by);
    void makeTabStop(FormatRow* row);

    const Look& m_look;
    ColorPickerModel& m_model;
    QList<FormatRow*> m_rows;
    QWidget* m_error = nullptr;
};

} // namespace dropshade
