// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "app/AboutWindowController.h"

#include "app/AboutText.h"
#include "app/SettingsReaders.h"
#include "support/FakeAppearance.h"
#include "support/MemoryDefaults.h"
#include "support/QtPrinters.h"
#include "widgets/TextButton.h"

#include <QApplication>
#include <QLabel>
#include <QTest>

#include <gtest/gtest.h>

namespace dropshade {
namespace {

class AboutWindowControllerTest : public testing::Test {
protected:
    [[nodiscard]] bool shows(const QString& words) const {
        const auto labels = controller.window()->findChildren<QLabel*>();
        return std::any_of(labels.begin(), labels.end(),
                           [&words](const QLabel* label) { return label->text() == words; });
    }
    void close() {
        controller.window()->close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    MemoryDefaults defaults;
    FakeAppearance appearance;
    Look look{appearance};
    QList<QUrl> opened;
    AboutWindowController controller{AboutWindowController::Surroundings{
        look, defaults, [this](const QUrl& url) { opened.append(url); }}};
};

TEST_F(AboutWindowControllerTest, SaysWhatTheProgramIsAndWhichVersionRuns) {
    QApplication::setApplicationVersion(QStringLiteral("3.2.1"));
    controller.show();
    EXPECT_TRUE(shows(QStringLiteral("Dropshade")));
    EXPECT_TRUE(shows(QStringLiteral("Version 3.2.1")));
    EXPECT_TRUE(shows(aboutText::description()));
    EXPECT_EQ(controller.window()->windowTitle(), QStringLiteral("About"));
}

TEST_F(AboutWindowControllerTest, IsAFixedPanelThreeHundredPointsWideWithItsWordsCentredInOrder) {
    defaults.setValue(keys::totalChecksCount, qint64(12));
    controller.show();
    const QWidget& window = *controller.window();
    EXPECT_EQ(window.minimumSize(), window.maximumSize());
    EXPECT_EQ(window.width(), 300);
    QMap<int, QString> words;
    for (const auto* label : window.findChildren<QLabel*>()) {
        words.insert(label->mapTo(&window, QPoint()).y(), label->text());
        EXPECT_TRUE(label->alignment().testFlag(Qt::AlignHCenter)) << label->text().toStdString();
    }
    EXPECT_EQ(words.values(),
              (QStringList{QStringLiteral("Dropshade"),
                           aboutText::version(QApplication::applicationVersion()),
                           aboutText::description(), QStringLiteral("You've copied 12 colors.")}));
    const auto* button = window.findChild<TextButton*>();
    EXPECT_EQ(button->text(), QStringLiteral("Visit Website"));
    EXPECT_GT(button->mapTo(&window, QPoint()).y(), words.lastKey());
}

TEST_F(AboutWindowControllerTest, IsCentredOnTheScreenEachTimeItIsBuilt) {
    for (int build = 0; build < 2; ++build) {
        controller.show();
        const QPoint away = controller.window()->geometry().center() -
                            controller.window()->screen()->availableGeometry().center();
        EXPECT_LE(away.manhattanLength(), 8) << "but for its frame";
        controller.window()->move(3, 4);
        close();
    }
}

TEST_F(AboutWindowControllerTest, AReopenedWindowShowsTheCountOfThatMoment) {
    controller.show();
    EXPECT_TRUE(shows(QStringLiteral("You've copied 0 colors.")));
    defaults.setValue(keys::totalChecksCount, qint64(1));
    controller.show();
    EXPECT_TRUE(shows(QStringLiteral("You've copied 0 colors."))) << "the same window";
    close();
    EXPECT_EQ(controller.window(), nullptr);
    controller.show();
    EXPECT_TRUE(shows(QStringLiteral("You've copied 1 color.")));
}

TEST_F(AboutWindowControllerTest, TheButtonOpensTheWebsiteAndClosesTheWindow) {
    controller.show();
    QTest::mouseClick(controller.window()->findChild<TextButton*>(), Qt::LeftButton);
    EXPECT_EQ(opened, QList<QUrl>{aboutText::website()});
    EXPECT_EQ(controller.window(), nullptr);
}

TEST_F(AboutWindowControllerTest, ReturnPressesTheButton) {
    controller.show();
    QApplication::setActiveWindow(controller.window());
    QTest::keyClick(controller.window(), Qt::Key_Return);
    EXPECT_EQ(opened.size(), 1);
}

TEST_F(AboutWindowControllerTest, EscapeClosesTheWindow) {
    controller.show();
    QApplication::setActiveWindow(controller.window());
    QTest::keyClick(controller.window(), Qt::Key_Escape);
    EXPECT_EQ(controller.window(), nullptr);
    EXPECT_TRUE(opened.isEmpty());
}

} // namespace
} // namespace dropshade
