// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "app/MenuBarIconStyle.h"
#include "widgets/Look.h"

#include <QList>
#include <QWidget>

class QAbstractButton;

namespace dropshade {

/// A tile for each drawing of the status item, one of them selected. Tab reaches the selected one,
/// arrow keys move the selection.
class MenuBarIconPicker : public QWidget {
    Q_OBJECT

public:
    MenuBarIconPicker(const Look& look, const QString& name, QWidget* parent = nullptr);

    /// Emits nothing.
    void setIconStyle(MenuBarIconStyle style);

Q_SIGNALS:
    void picked(dropshade::MenuBarIconStyle style);

private:
    QList<QAbstractButton*> m_tiles;
};

} // namespace dropshade
