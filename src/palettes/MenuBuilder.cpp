// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "palettes/MenuBuilder.h"

#include "widgets/Menu.h"

#include <QGuiApplication>

namespace dropshade {
namespace {

MenuRow::Confirmation wantedConfirmation() {
    return QGuiApplication::keyboardModifiers().testFlag(Qt::ShiftModifier)
               ? MenuRow::Confirmation::Skipped
               : MenuRow::Confirmation::Asked;
}

/// An ampersand in a name is no mark of a key.
QString menuText(const QString& title) {
    QString text = title;
    return text.replace(QLatin1Char('&'), QLatin1String("&&"));
}

void fill(Menu& menu, const QList<MenuRow>& rows) {
    for (const MenuRow& row : rows) {
        switch (row.kind) {
        case MenuRow::Kind::Divider:
            menu.addSeparator();
            break;
        case MenuRow::Kind::Section:
            menu.addHeader(menuText(row.title));
            break;
        case MenuRow::Kind::Submenu:
            fill(*menu.addSubmenu(menuText(row.title)), row.rows);
            break;
        case MenuRow::Kind::Item: {
            QAction* action = menu.addRow(menuText(row.title));
            if (row.isDestructive)
                menu.setDestructive(action);
            QObject::connect(action, &QAction::triggered,
                             [run = row.run] { run(wantedConfirmation()); });
            break;
        }
        }
    }
}

} // namespace

QMenu* makeMenu(const Look& look, const QList<MenuRow>& rows, QWidget* parent) {
    auto* menu = new Menu(look, parent);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    fill(*menu, rows);
    return menu;
}

} // namespace dropshade
