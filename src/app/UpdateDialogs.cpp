// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "app/UpdateDialogs.h"

#include <QAbstractButton>
#include <QDesktopServices>
#include <QPushButton>

namespace dropshade {

namespace {

/// More would make the dialog taller than the screen; the page has it all.
constexpr qsizetype mostLines = 16;
constexpr qsizetype mostCharacters = 1200;

QString beginningOf(const QString& notes) {
    QString beginning = notes.section(u'\n', 0, mostLines - 1);
    if (beginning.size() > mostCharacters)
        beginning.truncate(mostCharacters);
    return beginning.size() < notes.size() ? beginning + QStringLiteral("\u2026") : beginning;
}

} // namespace

UpdateDialogs::UpdateDialogs() = default;

UpdateDialogs::~UpdateDialogs() = default;

void UpdateDialogs::offer(const UpdateItem& item, const VersionNumber& current,
                          std::function<void(Answer)> answer) {
    QString text = tr("Dropshade %1 is available. You have %2.",
                      "Update available: %1 is the new version, %2 the installed one")
                       .arg(item.version.text(), current.text());
    if (!item.notes.isEmpty())
        text += QStringLiteral("\n\n") + beginningOf(item.notes);
    QMessageBox& dialog =
        makeDialog(QMessageBox::Information,
                   tr("A new version of Dropshade is available", "Update available title"), text);
    const QAbstractButton* open = dialog.addButton(
        tr("Open Download Page", "Update available button"), QMessageBox::AcceptRole);
    const QAbstractButton* skip = dialog.addButton(
        tr("Skip This Version", "Update available button"), QMessageBox::DestructiveRole);
    QPushButton* later =
        dialog.addButton(tr("Later", "Update available button"), QMessageBox::RejectRole);
    dialog.setEscapeButton(later);
    connect(&dialog, &QDialog::finished, this, [&dialog, open, skip, answer] {
        const QAbstractButton* clicked = dialog.clickedButton();
        answer(clicked == open   ? Answer::OpenDownloadPage
               : clicked == skip ? Answer::SkipVersion
                                 : Answer::Later);
    });
    dialog.show();
}

void UpdateDialogs::raiseOffer() {
    if (!m_dialog)
        return;
    m_dialog->show();
    m_dialog->raise();
    m_dialog->activateWindow();
}

void UpdateDialogs::tellUpToDate(const VersionNumber& current) {
    tell(QMessageBox::Information,
         tr("You\u2019re up to date", "Update check: no newer version title"),
         tr("Dropshade %1 is the newest version available.",
            "Update check: no newer version; %1 is the installed one")
             .arg(current.text()));
}

void UpdateDialogs::tellFailure(UpdateFailure failure) {
    QString reason;
    switch (failure) {
    case UpdateFailure::Unreachable:
        reason = tr("The update server could not be reached. Check the connection and try again.",
                    "Update check failed");
        break;
    case UpdateFailure::Refused:
        reason = tr("The update server has no list of versions to give at the moment.",
                    "Update check failed");
        break;
    case UpdateFailure::TimedOut:
        reason = tr("The update server took too long to answer.", "Update check failed");
        break;
    case UpdateFailure::UnsafeRedirect:
        reason =
            tr("The update server pointed to an address that is not safe.", "Update check failed");
        break;
    case UpdateFailure::TooLong:
    case UpdateFailure::Malformed:
        reason =
            tr("The answer of the update server could not be understood.", "Update check failed");
        break;
    }
    tell(QMessageBox::Warning, tr("Could not check for updates", "Update check failed title"),
         reason);
}

void UpdateDialogs::openPage(const QUrl& page) {
    if (QDesktopServices::openUrl(page))
        return;
    tell(QMessageBox::Warning, tr("No browser could be opened", "Update download page title"),
         tr("The new version is at this address:\n%1", "Update download page; %1 is a web address")
             .arg(page.toString(QUrl::FullyEncoded)));
}

QMessageBox& UpdateDialogs::makeDialog(QMessageBox::Icon icon, const QString& headline,
                                       const QString& text) {
    discard();
    m_dialog =
        std::make_unique<QMessageBox>(icon, headline, headline + QStringLiteral("\n\n") + text);
    m_dialog->setTextFormat(Qt::PlainText);
    m_dialog->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_dialog->setModal(false);
    connect(m_dialog.get(), &QDialog::finished, this, &UpdateDialogs::discard);
    return *m_dialog;
}

void UpdateDialogs::discard() {
    // Later, for it may be the dialog whose button is being handled.
    if (m_dialog)
        m_dialog.release()->deleteLater();
}

void UpdateDialogs::tell(QMessageBox::Icon icon, const QString& headline, const QString& text) {
    QMessageBox& dialog = makeDialog(icon, headline, text);
    dialog.addButton(QMessageBox::Ok);
    dialog.show();
    dialog.raise();
    dialog.activateWindow();
}

} // namespace dropshade
