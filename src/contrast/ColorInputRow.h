// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "app/ColorWindowSurroundings.h"
#include "contrast/ColorInputModel.h"
#include "contrast/ContrastActionMenu.h"

#include <QWidget>

namespace dropshade {

class Announcer;
class IconButton;
class InlineColorWell;
class TextField;

/// One of the two colours: a well, its text, and what can be done with it.
class ColorInputRow : public QWidget {
    Q_OBJECT

public:
    using SwatchTarget = ContrastModel::SwatchTarget;

    ColorInputRow(const ColorWindowSurroundings& surroundings, Announcer& announcer,
                  ContrastModel& model, SwatchTarget target, QWidget* parent = nullptr);

    [[nodiscard]] TextField& field() const { return *m_field; }
    [[nodiscard]] InlineColorWell& well() const { return *m_well; }
    [[nodiscard]] IconButton& actionButton() const { return *m_actions; }

private:
    void build(const QString& label);
    void connectField();
    void copy();
    void openActions();

    ColorWindowSurroundings m_surroundings;
    Announcer& m_announcer;
    ContrastModel& m_model;
    SwatchTarget m_target;
    ColorInputModel m_input;
    ContrastActionMenu m_menu;
    InlineColorWell* m_well = nullptr;
    TextField* m_field = nullptr;
    IconButton* m_actions = nullptr;
};

} // namespace dropshade
