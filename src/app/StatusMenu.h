// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "KeyboardShortcuts/DesktopBindings.h"
#include "app/AppSettings.h"
#include "app/RecentColor.h"
#include "platform/StatusItem.h"
#include "widgets/Icon.h"
#include "widgets/Look.h"

#include <QElapsedTimer>

#include <functional>
#include <memory>
#include <optional>

class QAction;

namespace dropshade {

class Menu;
class ShortcutMenu;

/// The menu under the status item. It is built anew for each time that it opens, from what is
/// stored at that moment, and thrown away when it has closed, so that nothing in it needs to be
/// kept in step.
class StatusMenu : public QObject {
    Q_OBJECT

public:
    /// What the menu shows. All of it must outlive the menu.
    struct Sources {
        UserDefaults& defaults;
        AppSettings& settings;
        KeyboardShortcuts& shortcuts;
        DesktopBindings& desktopBindings;
        /// Asked for only where there are favourites.
        std::function<const QList<Palette>&()> palettes;
        std::function<const Look&()> look;
    };

    StatusMenu(StatusItem& statusItem, Sources sources);
    ~StatusMenu() override;

    /// Opens the menu at the status item, or at the pointer where the desktop does not tell where
    /// the item is, or where the desktop puts it. A click that has just closed the menu does not
    /// open it again. Pins of palettes that are no more go from the settings with it.
    void show();

    /// Opens or closes the menu, as a click on the status item does.
    void toggle();

    [[nodiscard]] bool isOpen() const;
    void close();

Q_SIGNALS:
    void pickColorClicked();
    void openColorPicker();
    void openPalettes();
    void openContrast();
    void openNewPaletteFromImageMenu();
    void openNewPaletteFromFileMenu();
    void openNewPaletteFromPresetMenu();
    void pinnedColorClicked(const dropshade::PinnedColor& pin);
    void recentColorClicked(const dropshade::RecentColor& color);
    void clearRecentColors();
    void openSettings();
    void openAbout();
    void checkForUpdates();
    void quitApp();

private:
    using Row = void (StatusMenu::*)();

    [[nodiscard]] std::unique_ptr<ShortcutMenu> buildMenu();
    QAction* addRow(Menu& menu, const QString& title, std::optional<Icon> icon, Row row);
    void addToolRows(ShortcutMenu& menu);
    void addPaletteRows(ShortcutMenu& menu);
    void addProgramRows(ShortcutMenu& menu);
    void makeFavoritesItem(ShortcutMenu& menu);
    void makeRecentColorsItem(ShortcutMenu& menu);
    void forgetPinsOfVanishedPalettes(const QList<Palette>& palettes);
    void menuWillHide();
    [[nodiscard]] QPoint origin(const QSize& menuSize) const;

    StatusItem& m_statusItem;
    Sources m_sources;
    std::unique_ptr<ShortcutMenu> m_menu;
    QElapsedTimer m_sinceHidden;
};

} // namespace dropshade
