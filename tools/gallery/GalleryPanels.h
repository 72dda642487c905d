// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "app/AppDelegate.h"
#include "support/ManualScheduler.h"

#include <QPixmap>
#include <QWidget>

class QVBoxLayout;

namespace dropshade {

/// Pictures of what is no single control: the swatches of the palettes, and all that floats over a
/// window. Each has been shown, and is gone again.
class GalleryPanels : public QWidget {
public:
    GalleryPanels(AppDelegate& delegate, ManualScheduler& scheduler);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    enum Column { Left, Right };

    /// Until the windows of the program have come to rest.
    void settle();
    void add(Column column, const QString& title, const QPixmap& picture);
    void addSwatches();
    void addSheet();
    void addAlert(const QString& title, const Alert& alert);
    void addAlerts();
    void addPopover();
    void addMenu();
    void addToolTips();

    AppDelegate& m_delegate;
    ManualScheduler& m_scheduler;
    const Look& m_look;
    QVBoxLayout* m_columns[2];
};

} // namespace dropshade
