// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/linux/QtAlerts.h"

#include "platform/linux/FrontWindow.h"

#include <QMessageBox>
#include <QPushButton>

#include <utility>

namespace dropshade {
namespace {

QMessageBox::ButtonRole roleOf(const Alert::Button& button) {
    switch (button.role) {
    case Alert::Role::Cancel:
        return QMessageBox::RejectRole;
    case Alert::Role::Destructive:
        return QMessageBox::DestructiveRole;
    case Alert::Role::Default:
    case Alert::Role::Plain:
        break;
    }
    return QMessageBox::AcceptRole;
}

} // namespace

void QtAlerts::show(const Alert& alert, QWindow* host, Answer answer) {
    auto* box = new QMessageBox(QMessageBox::Warning, alert.title,
                                alert.title + QStringLiteral("\n\n") + alert.text);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setTextFormat(Qt::PlainText);
    QList<QAbstractButton*> buttons;
    for (const Alert::Button& button : alert.buttons) {
        QPushButton* const added = box->addButton(button.title, roleOf(button));
        buttons.append(added);
        if (button.role == Alert::Role::Default)
            box->setDefaultButton(added);
        if (button.role == Alert::Role::Cancel)
            box->setEscapeButton(added);
    }
    if (buttons.isEmpty())
        buttons.append(box->addButton(QMessageBox::Ok));
    if (!box->escapeButton())
        box->setEscapeButton(buttons.constLast());
    QObject::connect(&m_life, &QObject::destroyed, box, [box] { delete box; });
    QObject::connect(box, &QDialog::finished, &m_life, [box, buttons, answer = std::move(answer)] {
        answer(buttons.indexOf(box->clickedButton()));
    });
    showOver(*box, host);
}

} // namespace dropshade
