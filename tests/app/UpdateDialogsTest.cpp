// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "app/UpdateDialogs.h"

#include <QApplication>
#include <QDesktopServices>
#include <QPushButton>
#include <QTest>

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

    void offer(const QString& notes) {
        m_answer.reset();
        m_dialogs.offer(
            {version("2.0"), QUrl(QStringLiteral("https://dropshade.example/2.0")), notes},
            version("1.2"), [this](Answer answer) { m_answer = answer; });
    }

    static QMessageBox* shown() {
        for (QWidget* widget : QApplication::topLevelWidgets()) {
            auto* dialog = qobject_cast<QMessageBox*>(widget);
            if (dialog && dialog->isVisible())
                return dialog;
        }
        return nullptr;
    }

    static void click(const char* text) {
        for (QAbstractButton* button : shown()->buttons()) {
            if (button->text() == QLatin1String(text)) {
                QTest::mouseClick(button, Qt::LeftButton);
                return;
            }
        }
        ADD_FAILURE() << "no button " << text;
    }

    UpdateDialogs m_dialogs;
    std::optional<Answer> m_answer;
};

TEST_F(UpdateDialogsTest, ShowTheVersionsAndWhatIsNew) {
    offer(QStringLiteral("\u2022 A better loupe"));
    ASSERT_TRUE(shown());
    EXPECT_TRUE(
        shown()->text().contains(QStringLiteral("Dropshade 2.0 is available. You have 1.2.")));
    EXPECT_TRUE(shown()->text().contains(QStringLiteral("\u2022 A better loupe")));
    EXPECT_FALSE(shown()->isModal());
}

TEST_F(UpdateDialogsTest, ShowNotesAsPlainText) {
    offer(QStringLiteral("<img src='https://x.example/t.png'>"));
    EXPECT_EQ(shown()->textFormat(), Qt::PlainText);
    EXPECT_TRUE(shown()->informativeText().isEmpty());
}

TEST_F(UpdateDialogsTest, ShowTheBeginningOfLongNotes) {
    offer(QStringLiteral("line\n").repeated(500));
    EXPECT_LT(shown()->text().count(u'\n'), 25);
    EXPECT_TRUE(shown()->text().endsWith(u'\u2026'));
}

TEST_F(UpdateDialogsTest, GiveTheAnswerOfEachButton) {
    const std::pair<const char*, Answer> answers[] = {
        {"Open Download Page", Answer::OpenDownloadPage},
        {"Skip This Version", Answer::SkipVersion},
        {"Later", Answer::Later},
    };
    for (const auto& [text, answer] : answers) {
        offer(QString());
        click(text);
        EXPECT_EQ(m_answer, answer) << text;
        EXPECT_FALSE(shown());
    }
}

TEST_F(UpdateDialogsTest, TakeEscapeAndClosingForLater) {
    offer(QString());
    QTest::keyClick(shown(), Qt::Key_Escape);
    EXPECT_EQ(m_answer, Answer::Later);
    offer(QString());
    shown()->close();
    EXPECT_EQ(m_answer, Answer::Later);
}

TEST_F(UpdateDialogsTest, SayThatTheProgramIsUpToDate) {
    m_dialogs.tellUpToDate(version("1.2"));
    ASSERT_TRUE(shown());
    EXPECT_TRUE(shown()->text().contains(QStringLiteral("Dropshade 1.2 is the newest version")));
}

TEST_F(UpdateDialogsTest, HaveWordsForEachFailure) {
    QStringList texts;
    for (const UpdateFailure failure :
         {UpdateFailure::Unreachable, UpdateFailure::Refused, UpdateFailure::TooLong,
          UpdateFailure::UnsafeRedirect, UpdateFailure::TimedOut, UpdateFailure::Malformed}) {
        m_dialogs.tellFailure(failure);
        ASSERT_TRUE(shown());
        EXPECT_TRUE(shown()->text().startsWith(QStringLiteral("Could not check for updates\n\n")));
        texts.append(shown()->text().section(u'\n', 2));
        EXPECT_GT(texts.last().size(), 20);
        click("OK");
        EXPECT_FALSE(shown());
    }
}

TEST_F(UpdateDialogsTest, OpenThePageInTheBrowser) {
    Browser browser;
    const QUrl page(QStringLiteral("https://dropshade.example/2.0"));
    m_dialogs.openPage(page);
    EXPECT_EQ(browser.opened(), QList{page});
    EXPECT_FALSE(shown());
}

} // namespace
} // namespace dropshade

#include "UpdateDialogsTest.moc"
