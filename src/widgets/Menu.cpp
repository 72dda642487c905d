// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "widgets/Menu.h"

#include "widgets/ColorImage.h"
#include "widgets/Metrics.h"
#include "widgets/RoundedMask.h"
#include "widgets/TypeScale.h"

#include <QScreen>
#include <QStyleOption>

namespace dropshade {

namespace {

constexpr int submenuGap = 2;
constexpr const char* destructiveProperty = "destructive";

} // namespace

Menu::Menu(const Look& look, QWidget* parent) : QMenu(parent), m_look(look) {
    setStyle(look.style());
    setFont(textFont(TextStyle::Body));
    // What a mask without half pixels leaves of the corners has the menu's colour.
    QPalette colors = palette();
    colors.setColor(QPalette::Window, look.theme().surfaceRaised);
    setPalette(colors);
    setWindowFlag(Qt::FramelessWindowHint);
    setWindowFlag(Qt::NoDropShadowWindowHint);
    setAttribute(Qt::WA_TranslucentBackground, look.blendsWindows());
    setToolTipsVisible(false);
}

QIcon Menu::image(Icon icon) const {
    const Theme& theme = m_look.theme();
    QIcon result = tintedIcon(icon, theme.textSecondary, theme.textTertiary, metrics::iconMenu);
    for (const double ratio : {1.0, 2.0})
        result.addPixmap(iconPixmap(icon, theme.textPrimary, metrics::iconMenu, ratio),
                         QIcon::Active);
    return result;
}

QAction* Menu::addRow(const QString& text, std::optional<Icon> icon) {
    QAction* row = addAction(text);
    if (icon)
        row->setIcon(image(*icon));
    return row;
}

QAction* Menu::addHeader(const QString& title) {
    QAction* row = addAction(title);
    row->setEnabled(false);
    row->setFont(textFont(TextStyle::MenuHeader));
    return row;
}

QAction* Menu::addColorRow(const QString& text, const QColor& color) {
    QAction* row = addAction(text);
    row->setIcon(colorImage(color, m_look.theme()));
    return row;
}

Menu* Menu::addSubmenu(const QString& title, std::optional<Icon> icon) {
    auto* submenu = new Menu(m_look, this);
    submenu->setTitle(title);
    if (icon)
        submenu->setIcon(image(*icon));
    addMenu(submenu);
    return submenu;
}

void Menu::setDestructive(QAction* row) {
    row->setProperty(destructiveProperty, true);
}

void Menu::initStyleOption(QStyleOptionMenuItem* option, const QAction* action) const {
    QMenu::initStyleOption(option, action);
    const bool isDestructive = action && action->property(destructiveProperty).toBool();
    option->palette.setColor(QPalette::BrightText, m_look.theme().dangerBase);
    option->palette.setColor(QPalette::ButtonText, isDestructive ? m_look.theme().dangerBase
                                                                 : m_look.theme().textPrimary);
}

void Menu::resizeEvent(QResizeEvent* event) {
    QMenu::resizeEvent(event);
    maskWhereOpaque(*this, metrics::radiusSurface);
}

void Menu::keepClearOfParent() {
    // Qt lets a submenu that opens to the left lie over the rows that it came from.
    const auto* parent = qobject_cast<const Menu*>(parentWidget());
    if (!parent || !parent->isVisible() || !parent->geometry().intersects(geometry()))
        return;
    const int clear = parent->x() - submenuGap - width();
    if (x() < parent->x() && clear >= screen()->geometry().left())
        move(clear, y());
}

void Menu::showEvent(QShowEvent* event) {
    QMenu::showEvent(event);
    keepClearOfParent();
    maskWhereOpaque(*this, metrics::radiusSurface);
}

} // namespace dropshade
