// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "widgets/Menu.h"

#include "widgets/Metrics.h"
#include "widgets/Painting.h"
#include "widgets/RoundedMask.h"
#include "widgets/TypeScale.h"

#include <QStyleOption>

namespace dropshade {

namespace {

constexpr const char* destructiveProperty = "destructive";

} // namespace

QIcon colorImage(const QColor& color, const Theme& theme) {
    QIcon icon;
    for (const int ratio : {1, 2}) {
        const int side = metrics::menuSwatch;
        QPixmap pixmap(side * ratio, side * ratio);
        pixmap.setDevicePixelRatio(ratio);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        drawColor(painter, QRectF(0, 0, side, side), metrics::radiusCell, color, theme);
        painter.end();
        icon.addPixmap(pixmap);
    }
    return icon;
}

Menu::Menu(const Look& look, QWidget* parent) : QMenu(parent), m_look(look) {
    setStyle(look.style());
    setFont(textFont(TextStyle::Body));
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

void Menu::showEvent(QShowEvent* event) {
    QMenu::showEvent(event);
    maskWhereOpaque(*this, metrics::radiusSurface);
}

} // namespace dropshade
