// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "app/StatusMenu.h"

#include <QCursor>
#include <QGuiApplication>
#include <QScreen>

#include <chrono>

namespace dropshade {

namespace {

/// Some panels report the click that closed the menu after the menu has gone.
constexpr std::chrono::milliseconds closingClick{250};

} // namespace

StatusMenu::StatusMenu(StatusItem& statusItem) : m_statusItem(statusItem) {}

StatusMenu::~StatusMenu() = default;

void StatusMenu::show() {
    if (m_sinceHidden.isValid() && !m_sinceHidden.hasExpired(closingClick.count()))
        return;
    m_menu = buildMenu();
    m_menu->popup(origin(m_menu->sizeHint()));
}

bool StatusMenu::isOpen() const {
    return m_menu && m_menu->isVisible();
}

void StatusMenu::close() {
    if (m_menu)
        m_menu->close();
}

std::unique_ptr<QMenu> StatusMenu::buildMenu() {
    auto menu = std::make_unique<QMenu>();
    QAction* hint = menu->addAction(tr("Control-click for quick pick", "Menu bar hint"));
    hint->setEnabled(false);
    menu->addSeparator();
    QAction* quickPick =
        menu->addAction(tr("Quick Pick", "Menu item to open screen color sampler"));
    connect(quickPick, &QAction::triggered, this, &StatusMenu::pickColorClicked);
    menu->addSeparator();
    QAction* quit = menu->addAction(tr("Quit", "Menu item to quit app"));
    connect(quit, &QAction::triggered, this, &StatusMenu::quitClicked);
    connect(menu.get(), &QMenu::aboutToHide, this, [this] { m_sinceHidden.start(); });
    return menu;
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
