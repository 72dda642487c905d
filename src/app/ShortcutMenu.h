// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/Menu.h"

namespace dropshade {

/// A menu whose rows show their shortcuts as `setShortcut` and `setKeyText` left them, and whose
/// rows' shortcuts work while it or one of its submenus is open.
class ShortcutMenu : public Menu {
    Q_OBJECT

public:
    explicit ShortcutMenu(const Look& look);

    /// As `Menu::addSubmenu`, with the keyboard of this menu.
    Menu* addSubmenu(const QString& title, Icon icon);

protected:
    void initStyleOption(QStyleOptionMenuItem* option, const QAction* action) const override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    bool eventFilter(QObject* submenu, QEvent* event) override;
    bool triggerRow(const QKeyEvent& event);
};

/// The text of a row in a form in which menus show all of it: `&` is a letter, and a tab is a
/// blank.
[[nodiscard]] QString rowText(const QString& text);

} // namespace dropshade
