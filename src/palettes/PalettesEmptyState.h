// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/Look.h"

#include <QList>
#include <QWidget>

#include <optional>

class QAbstractButton;
class QVBoxLayout;

namespace dropshade {

class Label;

/// What the window shows while there are no palettes.
class PalettesEmptyState : public QWidget {
    Q_OBJECT

public:
    PalettesEmptyState(const Look& look, QWidget* parent);

    /// The global shortcut that opens the window, as the user reads it, if there is one.
    void setShortcut(const std::optional<QString>& shortcut);

Q_SIGNALS:
    void presetRequested();
    void scratchRequested();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    QVBoxLayout* m_column;
    QWidget* m_art;
    QList<QAbstractButton*> m_buttons;
    Label* m_hint;
};

} // namespace dropshade
