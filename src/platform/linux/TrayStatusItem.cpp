// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/linux/TrayStatusItem.h"

#include <QApplication>
#include <QMouseEvent>
#include <QWidget>

namespace dropshade {

namespace {

std::optional<Qt::MouseButton> buttonOf(QSystemTrayIcon::ActivationReason reason) {
    switch (reason) {
    case QSystemTrayIcon::Trigger:
        return Qt::LeftButton;
    case QSystemTrayIcon::Context:
        return Qt::RightButton;
    case QSystemTrayIcon::MiddleClick:
        return Qt::MiddleButton;
    case QSystemTrayIcon::DoubleClick: // Seen by the event filter.
    case QSystemTrayIcon::Unknown:
        break;
    }
    return std::nullopt;
}

/// The widget that Qt embeds in the tray, where the tray takes widgets.
QWidget* embeddedWidget() {
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (widget->inherits("QSystemTrayIconSys"))
            return widget;
    }
    return nullptr;
}

} // namespace

TrayStatusItem::TrayStatusItem() {
    connect(&m_hostWatch, &TrayHostWatch::found, this, &TrayStatusItem::createTrayIcon);
}

void TrayStatusItem::setIcon(const QIcon& icon) {
    const bool isFirst = m_icon.isNull();
    m_icon = icon;
    if (m_trayIcon) {
        m_trayIcon->setIcon(icon);
        m_trayIcon->setVisible(!icon.isNull());
    } else if (isFirst) {
        m_hostWatch.start();
    }
}

QRect TrayStatusItem::geometry() const {
    return m_trayIcon ? m_trayIcon->geometry() : QRect();
}

Qt::KeyboardModifiers TrayStatusItem::modifiers() const {
    // An embedded icon gets the click itself, with the modifiers of that very moment. Otherwise the
    // panel gets it, and what is held down now is the best there is.
    const bool isEmbedded = !geometry().isEmpty();
    return isEmbedded ? QGuiApplication::keyboardModifiers()
                      : QGuiApplication::queryKeyboardModifiers();
}

void TrayStatusItem::createTrayIcon() {
    m_trayIcon.emplace(m_icon);
    m_trayIcon->setToolTip(QStringLiteral("Dropshade"));
    connect(&*m_trayIcon, &QSystemTrayIcon::activated, this,
            [this](QSystemTrayIcon::ActivationReason reason) {
                if (const auto button = buttonOf(reason))
                    Q_EMIT clicked({*button, modifiers()});
            });
    m_trayIcon->show();
    if (QWidget* widget = embeddedWidget())
        widget->installEventFilter(this);
    Q_EMIT hostFound();
}

bool TrayStatusItem::eventFilter(QObject* watched, QEvent* event) {
    // Of two quick clicks Qt reports the second as a double click, and with the right button not at
    // all; here each click counts for itself.
    if (event->type() != QEvent::MouseButtonDblClick)
        return StatusItem::eventFilter(watched, event);
    const auto* mouse = static_cast<QMouseEvent*>(event);
    Q_EMIT clicked({mouse->button(), mouse->modifiers()});
    return true;
}

} // namespace dropshade
