// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "widgets/Menu.h"

#include "widgets/ColorImage.h"
#include "widgets/FocusAnswer.h"
#include "widgets/Metrics.h"
#include "widgets/RoundedMask.h"
#include "widgets/TypeScale.h"

#include <QGuiApplication>
#include <QScreen>
#include <QStyleOption>
#include <QWindow>

namespace dropshade {

namespace {

constexpr int submenuGap = 2;
constexpr const char* destructiveProperty = "destructive";

/// What a popup has from the desktop, for a menu that is none: whatever happens in another window
/// closes it and does nothing else there. The toolkit would take such a click for one in the menu,
/// by places on a screen of which it knows nothing.
class OutsideWatch : public QObject {
public:
    explicit OutsideWatch(QMenu& menu) : QObject(&menu), m_menu(menu) {
        qGuiApp->installEventFilter(this);
        connect(qGuiApp, &QGuiApplication::focusWindowChanged, this, [this](QWindow* window) {
            if (window && isOutside(*window))
                m_menu.close();
        });
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        const auto* window = qobject_cast<QWindow*>(watched);
        const bool isForMouse = event->type() == QEvent::MouseButtonPress ||
                                event->type() == QEvent::MouseMove ||
                                event->type() == QEvent::Wheel;
        if (!window || !isForMouse || !isOutside(*window))
            return false;
        if (event->type() == QEvent::MouseButtonPress)
            m_menu.close();
        return true;
    }

private:
    [[nodiscard]] bool isOutside(const QWindow& window) const {
        const QWindow* own = m_menu.windowHandle();
        return &window != own && !own->isAncestorOf(&window);
    }

    QMenu& m_menu;
};

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

void Menu::openAsWindow(const QString& title) {
    setWindowTitle(title);
    const QRect room = screen()->availableGeometry();
    // With a fixed size, desktops that tile their windows leave it as it is.
    if (sizeHint().height() <= room.height())
        setFixedSize(sizeHint());
    // As a popup it would hang from whichever window of the program had the pointer last, in that
    // window's corner.
    setWindowSystemType(Qt::Window);
    // Popups of the desktop's take a click or a key to open, and the pointer is enough to open
    // these. The first of them would get the click that is meant to close them all.
    for (Menu* submenu : findChildren<Menu*>())
        submenu->setWindowSystemType(Qt::ToolTip);
    new OutsideWatch(*this);
    answerFocusChanges(*this);
    // Wherever it is, as far as the program knows there is room for submenus beside it.
    popup(room.topLeft());
}

void Menu::setWindowSystemType(Qt::WindowType type) {
    winId();
    windowHandle()->setFlags((windowFlags() & ~Qt::WindowType_Mask) | type);
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
