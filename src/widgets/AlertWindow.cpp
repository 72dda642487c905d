// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "widgets/AlertWindow.h"

#include "widgets/ColorWell.h"
#include "widgets/Icon.h"
#include "widgets/Label.h"
#include "widgets/Metrics.h"
#include "widgets/TextButton.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QScreen>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace dropshade {

namespace {

constexpr int padding = metrics::space20;
constexpr int signSide = 20;
constexpr int colorSide = 40;

constexpr auto alertFlags = Qt::Dialog | Qt::WindowStaysOnTopHint;

bool isDestructive(const QList<Alert::Button>& buttons) {
    return std::any_of(buttons.begin(), buttons.end(), [](const Alert::Button& button) {
        return button.role == Alert::Role::Destructive;
    });
}

TextButton::Kind kind(Alert::Role role) {
    switch (role) {
    case Alert::Role::Default:
        return TextButton::Kind::Default;
    case Alert::Role::Destructive:
        return TextButton::Kind::Destructive;
    case Alert::Role::Cancel:
    case Alert::Role::Plain:
        break;
    }
    return TextButton::Kind::Plain;
}

} // namespace

AlertWindow* AlertWindow::ask(const Look& look, QWidget* host, const Alert& alert,
                              Alerts::Answer answer) {
    auto* window = new AlertWindow(look, host, alert, std::move(answer));
    window->place(host);
    window->fadeIn();
    window->raise();
    window->activateWindow();
    window->m_first->setFocus(Qt::PopupFocusReason);
    return window;
}

AlertWindow::AlertWindow(const Look& look, QWidget* host, const Alert& alert, Alerts::Answer answer)
    : Surface(look, host ? host->window() : nullptr, alertFlags), m_answer(std::move(answer)) {
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowModality(host ? Qt::WindowModal : Qt::NonModal);
    setWindowTitle(alert.title);
    setAccessibleName(alert.title);
    setAccessibleDescription(alert.text);
    build(alert);
}

AlertWindow::~AlertWindow() {
    // With its host; whoever asked still gets an answer.
    finish(m_cancelling);
}

void AlertWindow::build(const Alert& alert) {
    content()->setFixedWidth(metrics::alertWidth);
    auto* column = new QVBoxLayout(content());
    column->setContentsMargins(padding, padding, padding, padding);
    column->setSpacing(metrics::space16);
    auto* words = new QVBoxLayout;
    words->setSpacing(metrics::space4);
    auto* headline = new Label(look(), TextStyle::Heading, Label::Tone::Primary, alert.title);
    auto* body = new Label(look(), TextStyle::Body, Label::Tone::Secondary, alert.text);
    for (Label* label : {headline, body}) {
        label->setWordWrap(true);
        words->addWidget(label);
    }
    body->setVisible(!alert.text.isEmpty());
    auto* top = new QHBoxLayout;
    top->setSpacing(metrics::space16);
    top->addWidget(makeSign(alert), 0, Qt::AlignTop);
    top->addLayout(words, 1);
    column->addLayout(top);
    const Alert::Button acknowledge{tr("OK", "Button that acknowledges an alert"),
                                    Alert::Role::Default};
    column->addWidget(makeButtons(alert.buttons.isEmpty() ? QList{acknowledge} : alert.buttons));
}

QWidget* AlertWindow::makeSign(const Alert& alert) {
    if (alert.color) {
        auto* well = new ColorWell(look(), QString(), colorSide);
        well->setColor(alert.color);
        well->setFocusPolicy(Qt::NoFocus);
        well->setAttribute(Qt::WA_TransparentForMouseEvents);
        return well;
    }
    auto* sign = new QLabel;
    const bool warns = isDestructive(alert.buttons);
    const QColor ink = warns ? look().theme().dangerBase : look().theme().textSecondary;
    sign->setPixmap(
        iconPixmap(warns ? Icon::SizeWarning : Icon::Info, ink, signSide, devicePixelRatioF()));
    return sign;
}

QWidget* AlertWindow::makeButtons(const QList<Alert::Button>& buttons) {
    auto* bar = new QWidget;
    auto* row = new QHBoxLayout(bar);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(metrics::space8);
    row->addStretch(1);
    const Alert::Role first = isDestructive(buttons) ? Alert::Role::Cancel : Alert::Role::Default;
    m_cancelling = buttons.size() - 1;
    for (qsizetype index = 0; index < buttons.size(); ++index) {
        const Alert::Button& button = buttons.at(index);
        auto* widget = new TextButton(look(), kind(button.role), button.title);
        connect(widget, &QAbstractButton::clicked, this, [this, index] {
            finish(index);
            close();
        });
        row->addWidget(widget);
        if (button.role == Alert::Role::Cancel)
            m_cancelling = index;
        if (button.role == first || !m_first)
            m_first = widget;
    }
    return bar;
}

void AlertWindow::place(QWidget* host) {
    fit();
    const QRect area = host ? host->window()->frameGeometry()
                            : QGuiApplication::primaryScreen()->availableGeometry();
    QPoint corner = area.center() - QPoint(width() / 2, height() / 2);
    const QScreen* screen = QGuiApplication::screenAt(area.center());
    if (screen) {
        const QRect room = screen->availableGeometry();
        corner.setX(
            std::clamp(corner.x(), room.left(), std::max(room.left(), room.right() - width())));
        corner.setY(
            std::clamp(corner.y(), room.top(), std::max(room.top(), room.bottom() - height())));
    }
    move(corner);
}

void AlertWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) {
        close();
    } else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        if (auto* button = qobject_cast<QAbstractButton*>(focusWidget()))
            button->click();
    } else {
        Surface::keyPressEvent(event);
    }
}

void AlertWindow::closeEvent(QCloseEvent* event) {
    Surface::closeEvent(event);
    finish(m_cancelling);
}

void AlertWindow::finish(qsizetype button) {
    if (const Alerts::Answer answer = std::exchange(m_answer, nullptr))
        answer(button);
}

} // namespace dropshade
