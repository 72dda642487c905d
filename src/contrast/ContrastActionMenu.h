// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "app/ColorWindowSurroundings.h"
#include "contrast/ContrastModel.h"
#include "contrast/ContrastVerdicts.h"

#include <QObject>

#include <memory>

namespace dropshade {

class Announcer;
class Menu;

/// The menu of one colour of the contrast window: copy in any format, paste, and what would repair
/// the pair. Built anew each time that it opens.
class ContrastActionMenu : public QObject {
    Q_OBJECT

public:
    using SwatchTarget = ContrastModel::SwatchTarget;

    ContrastActionMenu(const ColorWindowSurroundings& surroundings, Announcer& announcer,
                       ContrastModel& model, SwatchTarget target);
    ~ContrastActionMenu() override;

    /// Opens beneath `button`, its right edge in line.
    void popup(QWidget& button);

    [[nodiscard]] std::unique_ptr<Menu> build();

private:
    void addCopyAs(Menu& menu);
    void addPaste(Menu& menu);
    void addFixes(Menu& menu);
    void copyAs(ColorFormat format);
    void paste();
    void applyFix(ContrastAlgorithm algorithm, double wanted);
    /// After the menu has gone and the window has settled.
    void later(std::function<void()> action);

    ColorWindowSurroundings m_surroundings;
    Announcer& m_announcer;
    ContrastModel& m_model;
    SwatchTarget m_target;
    std::unique_ptr<Menu> m_menu;
    std::unique_ptr<ScheduledWork> m_later;
};

} // namespace dropshade
