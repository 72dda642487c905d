// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "widgets/AlertWindow.h"

#include "support/FakeAppearance.h"
#include "widgets/Sheet.h"
#include "widgets/TextButton.h"

#include <QTest>
#include <QVBoxLayout>

#include <gtest/gtest.h>

namespace dropshade {
namespace {

class AlertWindowTest : public testing::Test {
protected:
    FakeAppearance m_appearance;
    Look m_look{m_appearance};
    QList<bool> m_answers;

    void SetUp() override { m_appearance.setReducedMotion(true); }

    AlertWindow* ask(bool isDestructive, QWidget* host = nullptr) {
        const Alert::Role confirming =
            isDestructive ? Alert::Role::Destructive : Alert::Role::Default;
        const Alert question{QStringLiteral("Delete?"),
                             QStringLiteral("It goes."),
                             {{QStringLiteral("Cancel"), Alert::Role::Cancel},
                              {QStringLiteral("Delete"), confirming}}};
        AlertWindow* alert = AlertWindow::ask(
            m_look, host, question, [this](qsizetype button) { m_answers.append(button == 1); });
        alert->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(alert));
        return alert;
    }

    static TextButton* button(QWidget* inside, const QString& word) {
        for (auto* found : inside->findChildren<TextButton*>()) {
            if (found->text() == word)
                return found;
        }
        return nullptr;
    }
};

TEST_F(AlertWindowTest, AnswersOnceWithTheButtonThatWasClicked) {
    AlertWindow* alert = ask(true);
    QTest::mouseClick(button(alert, QStringLiteral("Delete")), Qt::LeftButton);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(m_answers, QList<bool>{true});
}

TEST_F(AlertWindowTest, WithoutButtonsItHasOneToAcknowledge) {
    QList<qsizetype> answers;
    AlertWindow* alert =
        AlertWindow::ask(m_look, nullptr, {QStringLiteral("Note"), QStringLiteral("It went.")},
                         [&answers](qsizetype answer) { answers.append(answer); });
    QTest::mouseClick(button(alert, QStringLiteral("OK")), Qt::LeftButton);
    EXPECT_EQ(answers, QList<qsizetype>{0});
}

TEST_F(AlertWindowTest, EscapeCancels) {
    QTest::keyClick(ask(true), Qt::Key_Escape);
    EXPECT_EQ(m_answers, QList<bool>{false});
}

TEST_F(AlertWindowTest, EnterDoesNotDestroy) {
    QTest::keyClick(ask(true), Qt::Key_Return);
    EXPECT_EQ(m_answers, QList<bool>{false});
}

TEST_F(AlertWindowTest, EnterConfirmsWhatHarmsNothing) {
    QTest::keyClick(ask(false), Qt::Key_Return);
    EXPECT_EQ(m_answers, QList<bool>{true});
}

TEST_F(AlertWindowTest, AnswersNoWhenItsHostGoes) {
    auto host = std::make_unique<QWidget>();
    host->show();
    ask(true, host.get());
    host.reset();
    EXPECT_EQ(m_answers, QList<bool>{false});
}

TEST_F(AlertWindowTest, ASheetKeepsTheKeyboardInside) {
    QWidget host;
    host.resize(500, 400);
    TextButton outside(m_look, TextButton::Kind::Plain, QStringLiteral("Outside"), &host);
    host.show();
    host.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&host));
    outside.setFocus();
    QPointer<Sheet> sheet = new Sheet(m_look, host);
    auto* column = new QVBoxLayout(sheet->panel());
    auto* first = new TextButton(m_look, TextButton::Kind::Plain, QStringLiteral("First"));
    auto* second = new TextButton(m_look, TextButton::Kind::Default, QStringLiteral("Second"));
    column->addWidget(first);
    column->addWidget(second);
    sheet->open();
    EXPECT_TRUE(first->hasFocus());
    for (int press = 0; press < 5; ++press) {
        QTest::keyClick(host.focusWidget(), Qt::Key_Tab);
        EXPECT_FALSE(outside.hasFocus());
    }
    EXPECT_TRUE(second->hasFocus());
    int closed = 0;
    QObject::connect(sheet, &Sheet::closed, [&closed] { ++closed; });
    QTest::keyClick(second, Qt::Key_Escape);
    EXPECT_EQ(closed, 1);
    EXPECT_TRUE(outside.hasFocus());
    EXPECT_TRUE(QTest::qWaitFor([&sheet] { return sheet.isNull(); }));
}

} // namespace
} // namespace dropshade
