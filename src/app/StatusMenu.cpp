// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "app/StatusMenu.h"

#include "KeyboardShortcuts/ShortcutRow.h"
#include "app/MenuColors.h"
#include "app/ShortcutMenu.h"
#include "platform/QtColor.h"
#include "widgets/TypeScale.h"

#include <QCursor>
#include <QGuiApplication>
#include <QScreen>

#include <chrono>
#include <utility>

namespace dropshade {

namespace {

/// Some panels report the click that closed the menu after the menu has gone.
constexpr std::chrono::milliseconds closingClick{250};

/// A key of the row that works while the menu is open, with the Control key.
void setKeyEquivalent(QAction& row, Qt::Key key) {
    row.setShortcut(QKeySequence(Qt::CTRL | key));
    row.setShortcutVisibleInContextMenu(false);
    setKeyText(row, QStringLiteral("\u2303") + QChar(key));
}

} // namespace

StatusMenu::StatusMenu(StatusItem& statusItem, Sources sources)
    : m_statusItem(statusItem), m_sources(std::move(sources)) {}

StatusMenu::~StatusMenu() = default;

void StatusMenu::show() {
    if (isOpen() || (m_sinceHidden.isValid() && !m_sinceHidden.hasExpired(closingClick.count())))
        return;
    m_menu = buildMenu();
    connect(m_menu.get(), &QMenu::aboutToHide, this, &StatusMenu::menuWillHide);
    if (m_sources.look().programsPlaceWindows())
        m_menu->popup(origin(m_menu->sizeHint()));
    else
        m_menu->openAsWindow(QStringLiteral("Dropshade"));
}

void StatusMenu::toggle() {
    if (isOpen())
        close();
    else
        show();
}

bool StatusMenu::isOpen() const {
    return m_menu && m_menu->isVisible();
}

void StatusMenu::close() {
    if (m_menu)
        m_menu->close();
}

void StatusMenu::menuWillHide() {
    m_sinceHidden.start();
    // The row that was chosen speaks after this.
    m_menu.release()->deleteLater();
}

std::unique_ptr<ShortcutMenu> StatusMenu::buildMenu() {
    const Look& look = m_sources.look();
    auto menu = std::make_unique<ShortcutMenu>(look);
    menu->setSeparatorsCollapsible(false);
    //: Menu bar hint
    menu->addRow(tr("Control-click for quick pick"), Icon::Pointer)->setEnabled(false);
    menu->addSeparator();
    addToolRows(*menu);
    menu->addSeparator();
    addPaletteRows(*menu);
    menu->addSeparator();
    makeFavoritesItem(*menu);
    makeRecentColorsItem(*menu);
    menu->addSeparator();
    addProgramRows(*menu);
    return menu;
}

QAction* StatusMenu::addRow(Menu& menu, const QString& title, std::optional<Icon> icon, Row row) {
    QAction* action = menu.addRow(title, icon);
    connect(action, &QAction::triggered, this, row);
    return action;
}

void StatusMenu::addToolRows(ShortcutMenu& menu) {
    const auto addTool = [&](const QString& title, Icon icon, Row row, const ShortcutName& name) {
        QAction* action = addRow(menu, title, icon, row);
        action->setShortcutVisibleInContextMenu(false);
        // What is stored means nothing where the desktop has the keys.
        if (m_sources.shortcuts.isAvailable())
            setShortcut(*action, m_sources.shortcuts, name);
        else
            setKeyText(*action, m_sources.desktopBindings.trigger(name));
    };
    //: Menu item to open screen color sampler
    addTool(tr("Quick Pick"), Icon::MenuBar, &StatusMenu::pickColorClicked,
            shortcutNames::pickColor);
    //: Menu item to open color picker window
    addTool(tr("Color Picker…"), Icon::Palette, &StatusMenu::openColorPicker,
            shortcutNames::convert);
    //: Menu item to open palettes window
    addTool(tr("Palettes…"), Icon::ColorSwatch, &StatusMenu::openPalettes, shortcutNames::palettes);
    //: Menu item to open contrast checker
    addTool(tr("Check Contrast…"), Icon::Contrast, &StatusMenu::openContrast,
            shortcutNames::checkContrast);
}

void StatusMenu::addPaletteRows(ShortcutMenu& menu) {
    //: Menu item to create palette from image
    addRow(menu, tr("New Palette from Image…"), std::nullopt,
           &StatusMenu::openNewPaletteFromImageMenu);
    //: Menu item to create palette from file
    addRow(menu, tr("New Palette from File… (.ase, .clr, .json)"), std::nullopt,
           &StatusMenu::openNewPaletteFromFileMenu);
    //: Menu item to create palette from a built-in preset
    addRow(menu, tr("New Palette from Preset…"), std::nullopt,
           &StatusMenu::openNewPaletteFromPresetMenu);
}

void StatusMenu::addProgramRows(ShortcutMenu& menu) {
    //: Menu item to open settings
    QAction* settings = addRow(menu, tr("Settings…"), Icon::Settings, &StatusMenu::openSettings);
    setKeyEquivalent(*settings, Qt::Key_Comma);
    //: Menu item to open about window
    addRow(menu, tr("About…"), Icon::Info, &StatusMenu::openAbout);
    //: Menu item to check for app updates
    addRow(menu, tr("Check for Updates…"), Icon::Refresh, &StatusMenu::checkForUpdates);
    menu.addSeparator();
    //: Menu item to quit app
    QAction* quit = addRow(menu, tr("Quit"), Icon::Quit, &StatusMenu::quitApp);
    setKeyEquivalent(*quit, Qt::Key_Q);
}

void StatusMenu::forgetPinsOfVanishedPalettes(const QList<Palette>& palettes) {
    QSet<QUuid> present;
    for (const Palette& palette : palettes)
        present.insert(palette.id());
    const QList<PinnedColor> pins = m_sources.settings.pinnedColors();
    for (const PinnedColor& pin : pins) {
        if (!present.contains(pin->paletteId))
            m_sources.settings.unpinPalette(pin->paletteId);
    }
}

void StatusMenu::makeFavoritesItem(ShortcutMenu& menu) {
    if (m_sources.settings.pinnedColors().isEmpty())
        return;
    const QList<Palette> palettes = m_sources.palettes();
    forgetPinsOfVanishedPalettes(palettes);
    const auto groups =
        favoriteGroups(m_sources.settings.pinnedColors(), palettes, m_sources.defaults);
    if (groups.isEmpty())
        return;
    //: Submenu title
    Menu* submenu = menu.addSubmenu(tr("Favorites"), Icon::Star);
    const QFont valueFont = textFont(TextStyle::Value);
    for (const FavoriteGroup& group : groups) {
        if (!submenu->isEmpty())
            submenu->addSeparator();
        submenu->addHeader(rowText(group.title));
        for (const FavoriteRow& row : group.rows) {
            QAction* action =
                submenu->addColorRow(rowText(row.title), toQColor(row.pin.cachedColor()));
            if (row.isValue)
                action->setFont(valueFont);
            connect(action, &QAction::triggered, this,
                    [this, pin = row.pin] { Q_EMIT pinnedColorClicked(pin); });
        }
    }
}

void StatusMenu::makeRecentColorsItem(ShortcutMenu& menu) {
    const QList<RecentRow> rows = recentRows(m_sources.defaults);
    if (rows.isEmpty())
        return;
    //: Submenu title
    Menu* submenu = menu.addSubmenu(tr("Recent Colors"), Icon::Clock);
    const QFont valueFont = textFont(TextStyle::Value);
    for (const RecentRow& row : rows) {
        QAction* action = submenu->addColorRow(rowText(row.title), toQColor(row.color.color()));
        action->setFont(valueFont);
        connect(action, &QAction::triggered, this,
                [this, color = row.color] { Q_EMIT recentColorClicked(color); });
    }
    submenu->addSeparator();
    //: Menu item to clear color history
    addRow(*submenu, tr("Clear Recent Colors"), Icon::Eraser, &StatusMenu::clearRecentColors);
}

QPoint StatusMenu::origin(const QSize& menuSize) const {
    const QRect item = m_statusItem.geometry();
    const QScreen* screen = item.isEmpty() ? nullptr : QGuiApplication::screenAt(item.center());
    if (!screen)
        return QCursor::pos();
    const bool fitsBelow = item.bottom() + menuSize.height() <= screen->geometry().bottom();
    return fitsBelow ? item.bottomLeft() + QPoint(0, 1)
                     : item.topLeft() - QPoint(0, menuSize.height());
}

} // namespace dropshade
