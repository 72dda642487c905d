// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "app/UpdateDialogs.h"

#include "support/FakeAlerts.h"
#include "support/QtPrinters.h"

#include <QDesktopServices>
#include <QObject>

#include <gtest/gtest.h>

#include <optional>

namespace dropshade {
namespace {

using Answer = UpdatePrompt::Answer;

/// Takes the place of the browser.
class Browser : public QObject {
    Q_OBJECT

public:
    Browser() { QDesktopServices::setUrlHandler(QStringLiteral("https"), this, "open"); }
    ~Browser() override { QDesktopServices::unsetUrlHandler(QStringLiteral("https")); }

    Q_INVOKABLE void open(const QUrl& url) { m_opened.append(url); }
    const QList<QUrl>& opened() const { return m_opened; }

private:
    QList<QUrl> m_opened;
};

class UpdateDialogsTest : public testing::Test {
protected:
    static VersionNumber version(const char* text) {
        return *VersionNumber::parse(QString::fromLatin1(text));
    }
    const Alert& offer(const QString& notes) {
        m_answer.reset();
        m_dialogs.offer(
            {version("2.0"), QUrl(QStringLiteral("https://dropshade.example/2.0")), notes},
            version("1.2"), [this](Answer answer) { m_answer = answer; });
        return m_alerts.shown().constLast();
    }

    FakeAlerts m_alerts;
    UpdateDialogs m_dialogs{m_alerts};
    std::optional<Answer> m_answer;
};

TEST_F(UpdateDialogsTest, ShowTheVersionsAndWhatIsNewAndHoldNothingUp) {
    const Alert& alert = offer(QStringLiteral("\u2022 A better loupe"));
    EXPECT_TRUE(alert.text.contains(QStringLiteral("Dropshade 2.0 is available. You have 1.2.")));
    EXPECT_TRUE(alert.text.contains(QStringLiteral("\u2022 A better loupe")));
    EXPECT_EQ(alert.place, Alert::Place::Alone);
}

TEST_F(UpdateDialogsTest, ShowTheBeginningOfLongNotes) {
    const Alert& alert = offer(QStringLiteral("line\n").repeated(500));
    EXPECT_LT(alert.text.count(u'\n'), 25);
    EXPECT_TRUE(alert.text.endsWith(u'\u2026'));
}

TEST_F(UpdateDialogsTest, EndLongNotesWithAWholeCharacter) {
    for (const QString& start : {QString(), QStringLiteral("-")}) {
        const Alert alert = offer(start + QStringLiteral("\U0001F3A8").repeated(1000));
        EXPECT_TRUE(alert.text.endsWith(QStringLiteral("\U0001F3A8\u2026")));
    }
}

TEST_F(UpdateDialogsTest, GiveTheAnswerOfEachButton) {
    const std::pair<const char*, Answer> answers[] = {
        {"Later", Answer::Later},
        {"Skip This Version", Answer::SkipVersion},
        {"Open Download Page", Answer::OpenDownloadPage},
    };
    for (qsizetype button = 0; button < 3; ++button) {
        const Alert& alert = offer(QString());
        EXPECT_EQ(alert.buttons.at(button).title, QLatin1String(answers[button].first));
        m_alerts.answer(button);
        EXPECT_EQ(m_answer, answers[button].second);
    }
}

TEST_F(UpdateDialogsTest, TakeEscapeForLater) {
    EXPECT_EQ(offer(QString()).buttons.at(0).role, Alert::Role::Cancel);
}

TEST_F(UpdateDialogsTest, BringAnOfferBeforeTheUserOnceMore) {
    offer(QString());
    m_dialogs.raiseOffer();
    EXPECT_EQ(m_alerts.raiseCount(), 1);
}

TEST_F(UpdateDialogsTest, SayThatTheProgramIsUpToDate) {
    m_dialogs.tellUpToDate(version("1.2"));
    ASSERT_EQ(m_alerts.shown().size(), 1);
    EXPECT_EQ(m_alerts.shown().at(0).text,
              QStringLiteral("Dropshade 1.2 is the newest version available."));
}

TEST_F(UpdateDialogsTest, HaveWordsForEachFailure) {
    for (const UpdateFailure failure :
         {UpdateFailure::Unreachable, UpdateFailure::Refused, UpdateFailure::TooLong,
          UpdateFailure::UnsafeRedirect, UpdateFailure::TimedOut, UpdateFailure::Malformed}) {
        m_dialogs.tellFailure(failure);
        const Alert& alert = m_alerts.shown().constLast();
        EXPECT_EQ(alert.title, QStringLiteral("Could not check for updates"));
        EXPECT_GT(alert.text.size(), 20);
    }
    EXPECT_EQ(m_alerts.shown().size(), 6);
}

TEST_F(UpdateDialogsTest, OpenThePageInTheBrowser) {
    Browser browser;
    const QUrl page(QStringLiteral("https://dropshade.example/2.0"));
    m_dialogs.openPage(page);
    EXPECT_EQ(browser.opened(), QList{page});
    EXPECT_TRUE(m_alerts.shown().isEmpty());
}

} // namespace
} // namespace dropshade

#include "UpdateDialogsTest.moc"
