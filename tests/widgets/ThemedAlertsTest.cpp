// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "widgets/ThemedAlerts.h"

#include "support/FakeAppearance.h"

#include <QApplication>
#include <QTest>

#include <gtest/gtest.h>

namespace dropshade {
namespace {

class ThemedAlertsTest : public testing::Test {
protected:
    void SetUp() override { m_appearance.setReducedMotion(true); }

    static QList<AlertWindow*> shown() {
        QList<AlertWindow*> shown;
        for (QWidget* widget : QApplication::topLevelWidgets()) {
            auto* alert = qobject_cast<AlertWindow*>(widget);
            if (alert && alert->isVisible())
                shown.append(alert);
        }
        return shown;
    }
    Alerts::Answer answer() {
        return [this](qsizetype button) { m_answers.append(button); };
    }

    FakeAppearance m_appearance;
    ThemedAlerts m_alerts{m_appearance};
    QList<qsizetype> m_answers;
    const Alert m_alert{QStringLiteral("Couldn't do it"), QStringLiteral("For this reason.")};
};

TEST_F(ThemedAlertsTest, AnAlertBelongsToTheWindowInFront) {
    QWidget window;
    window.show();
    m_alerts.show(m_alert, answer());
    ASSERT_EQ(shown().size(), 1);
    EXPECT_EQ(shown().at(0)->parentWidget(), &window);
    EXPECT_EQ(shown().at(0)->windowModality(), Qt::WindowModal);
    shown().at(0)->close();
    EXPECT_EQ(m_answers, QList<qsizetype>{0});
}

TEST_F(ThemedAlertsTest, AnAlertThatComesUnaskedHoldsNoWindowUp) {
    QWidget window;
    window.show();
    Alert alert = m_alert;
    alert.place = Alert::Place::Alone;
    m_alerts.show(alert, answer());
    ASSERT_EQ(shown().size(), 1);
    EXPECT_EQ(shown().at(0)->parentWidget(), nullptr);
    EXPECT_EQ(shown().at(0)->windowModality(), Qt::NonModal);
}

TEST_F(ThemedAlertsTest, AnAlertOfAHostThatGoesAnswersAndIsForgotten) {
    {
        QWidget window;
        window.show();
        m_alerts.show(m_alert, answer());
    }
    EXPECT_EQ(m_answers, QList<qsizetype>{0});
    m_alerts.raise();
}

TEST_F(ThemedAlertsTest, WhatStillWaitsEndsWithTheAlerts) {
    {
        ThemedAlerts alerts(m_appearance);
        alerts.show(m_alert, answer());
    }
    EXPECT_TRUE(shown().isEmpty());
    EXPECT_EQ(m_answers, QList<qsizetype>{0});
}

} // namespace
} // namespace dropshade
