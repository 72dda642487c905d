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

} // namespace

AlertWindow* AlertWindow::ask(const Look& look, QWidget* host, const AlertText& text,
                              Answer answer) {
    auto* alert = new AlertWindow(look, host, text, std::move(answer));
    alert->place(host);
    alert->fadeIn(metrics::popoverIn);
    alert->raise();
    alert->activateWindow();
    alert->m_first->setFocus(Qt::PopupFocusReason);
    return alert;
}

AlertWindow::AlertWindow(const Look& look, QWidget* host, const AlertText& text, Answer answer)
    : Surface(look, host ? host->window() : nullptr, alertFlags), m_answer(std::move(answer)) {
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowModality(host ? Qt::WindowModal : Qt::NonModal);
    setWindowTitle(text.headline);
    setAccessibleName(text.headline);
    setAccessibleDescription(text.text);
    build(text);
}

AlertWindow::~AlertWindow() {
    // With its host; whoever asked still gets an answer.
    finish(false);
}

void AlertWindow::build(const AlertText& text) {
    content()->setFixedWidth(metrics::alertWidth);
    auto* column = new QVBoxLayout(content());
    column->setContentsMargins(padding, padding, padding, padding);
    column->setSpacing(metrics::space16);
    auto* words = new QVBoxLayout;
    words->setSpacing(metrics::space4);
    auto* headline = new Label(look(), TextStyle::Heading, Label::Tone::Primary, text.headline);
    auto* body = new Label(look(), TextStyle::Body, Label::Tone::Secondary, text.text);
    for (Label* label : {headline, body}) {
        label->setWordWrap(true);
        words->addWidget(label);
    }
    body->setVisible(!text.text.isEmpty());
    auto* top = new QHBoxLayout;
    top->setSpacing(metrics::space16);
    top->addWidget(makeSign(text), 0, Qt::AlignTop);
    top->addLayout(words, 1);
    column->addLayout(top);
    column->addWidget(makeButtons(text));
}

QWidget* AlertWindow::makeSign(const AlertText& text) {
    if (text.color) {
        auto* well = new ColorWell(look(), QString(), colorSide);
        well->setColor(text.color);
        well->setFocusPolicy(Qt::NoFocus);
        well->setAttribute(Qt::WA_TransparentForMouseEvents);
        return well;
    }
    auto* sign = new QLabel;
    const QColor ink =
        text.isDestructive ? look().theme().dangerBase : look().theme().textSecondary;
    sign->setPixmap(iconPixmap(text.isDestructive ? Icon::SizeWarning : Icon::Info, ink, signSide,
                               devicePixelRatioF()));
    return sign;
}

QWidget* AlertWindow::makeButtons(const AlertText& text) {
    auto* bar = new QWidget;
    auto* row = new QHBoxLayout(bar);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(metrics::space8);
    row->addStretch(1);
    const auto add = [&](TextButton::Kind kind, const QString& title, bool confirms) {
        auto* button = new TextButton(look(), kind, title);
        connect(button, &QAbstractButton::clicked, this, [this, confirms] {
            finish(confirms);
            close();
        });
        row->addWidget(button);
        return button;
    };
    if (!text.cancel.isEmpty())
        m_first = add(TextButton::Kind::Plain, text.cancel, false);
    QWidget* confirm =
        add(text.isDestructive ? TextButton::Kind::Destructive : TextButton::Kind::Default,
            text.confirm, true);
    if (!m_first || !text.isDestructive)
        m_first = confirm;
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
    finish(false);
    event->accept();
}

void AlertWindow::finish(bool confirmed) {
    if (const Answer answer = std::exchange(m_answer, nullptr))
        answer(confirmed);
}

} // namespace dropshade
