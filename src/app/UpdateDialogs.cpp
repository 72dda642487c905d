// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "app/UpdateDialogs.h"

#include <QDesktopServices>

#include <array>
#include <utility>

namespace dropshade {

namespace {

/// More would make the dialog taller than the screen; the page has it all.
constexpr qsizetype mostLines = 16;
constexpr qsizetype mostCharacters = 1200;

QString beginningOf(const QString& notes) {
    QString beginning = notes.section(u'\n', 0, mostLines - 1);
    beginning.truncate(mostCharacters);
    if (!beginning.isEmpty() && beginning.back().isHighSurrogate())
        beginning.chop(1);
    return beginning.size() < notes.size() ? beginning + QStringLiteral("\u2026") : beginning;
}

} // namespace

void UpdateDialogs::offer(const UpdateItem& item, const VersionNumber& current,
                          std::function<void(Answer)> answer) {
    QString text = tr("Dropshade %1 is available. You have %2.",
                      "Update available: %1 is the new version, %2 the installed one")
                       .arg(item.version.text(), current.text());
    if (!item.notes.isEmpty())
        text += QStringLiteral("\n\n") + beginningOf(item.notes);
    Alert alert{tr("A new version of Dropshade is available", "Update available title"), text};
    alert.buttons = {{tr("Later", "Update available button"), Alert::Role::Cancel},
                     {tr("Skip This Version", "Update available button"), Alert::Role::Plain},
                     {tr("Open Download Page", "Update available button"), Alert::Role::Default}};
    alert.place = Alert::Place::Alone;
    m_alerts.show(alert, [answer = std::move(answer)](qsizetype button) {
        constexpr std::array answers = {Answer::Later, Answer::SkipVersion,
                                        Answer::OpenDownloadPage};
        answer(answers.at(static_cast<std::size_t>(button)));
    });
}

void UpdateDialogs::tellUpToDate(const VersionNumber& current) {
    tell(tr("You\u2019re up to date", "Update check: no newer version title"),
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
    tell(tr("Could not check for updates", "Update check failed title"), reason);
}

void UpdateDialogs::openPage(const QUrl& page) {
    if (QDesktopServices::openUrl(page))
        return;
    tell(tr("No browser could be opened", "Update download page title"),
         tr("The new version is at this address:\n%1", "Update download page; %1 is a web address")
             .arg(page.toString(QUrl::FullyEncoded)));
}

void UpdateDialogs::tell(const QString& headline, const QString& text) {
    Alert alert{headline, text};
    alert.place = Alert::Place::Alone;
    m_alerts.show(alert, [](qsizetype) {});
}

} // namespace dropshade
