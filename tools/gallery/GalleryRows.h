// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "app/AppDelegate.h"
#include "support/FakePlatform.h"

#include <QGridLayout>
#include <QList>
#include <QWidget>

#include <functional>

namespace dropshade {

/// A table of controls: a row for each kind, a column for each state.
class GalleryRows : public QWidget {
public:
    struct Surroundings {
        AppDelegate& delegate;
        Alerts& alerts;
        FakeKeyboardLayout& layout;
    };

    explicit GalleryRows(const Surroundings& surroundings);

    /// Brings the controls of each column into its state. Once, when the page shows.
    void setStates();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    using Make = std::function<QWidget*()>;

    void addHeads();
    void addRow(const QString& name, const Make& make);
    void addButtons();
    void addFields();
    void addChoices();
    void addRecorders();
    void addColors();

    Surroundings m_with;
    const Look& m_look;
    QGridLayout* m_grid;
    int m_row = 0;
    QList<QWidget*> m_hovered;
    QList<QWidget*> m_pressed;
    QList<QWidget*> m_focused;
};

} // namespace dropshade
