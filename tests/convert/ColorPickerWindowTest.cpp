// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "convert/ColorPickerWindow.h"

#include "ColorSelector/SelectorPanel.h"
#include "convert/ColorPickerWindowController.h"
#include "convert/FormatList.h"
#include "convert/PreviewSwatch.h"
#include "support/AccessibleTree.h"
#include "support/ColorWindowFixture.h"
#include "support/QtPrinters.h"
#include "widgets/Hairline.h"
#include "widgets/IconButton.h"
#include "widgets/Label.h"
#include "widgets/TextField.h"

#include <QTest>

#include <gtest/gtest.h>

namespace dropshade {
namespace {

class ColorPickerWindowTest : public testing::Test {
protected:
    ColorWindowFixture m_fixture;
    ColorPickerWindowController m_controller{m_fixture.surroundings};

    void show() {
        m_controller.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(m_controller.window()));
    }
    ColorPickerModel& model() { return m_controller.model(); }
    ColorPickerWindow& window() { return *m_controller.window(); }
    void type(const QString& text) {
        window().input().selectAll();
        QTest::keyClicks(&window().input(), text);
    }
    Label* label(const char* words) {
        for (auto* found : window().findChildren<Label*>()) {
            if (found->text() == QLatin1String(words))
                return found;
        }
        return nullptr;
    }
    IconButton* button(const char* name) {
        for (auto* found : window().findChildren<IconButton*>()) {
            if (found->accessibleName() == QLatin1String(name))
                return found;
        }
        return nullptr;
    }
};

TEST_F(ColorPickerWindowTest, OpensWithTheColorOfTheClipboardAndTheKeyboardInItsField) {
    m_fixture.pasteboard.setTextFromAnotherProgram(QStringLiteral(" teal "));
    show();
    EXPECT_EQ(window().input().text(), QStringLiteral("teal"));
    EXPECT_TRUE(window().input().hasFocus());
    EXPECT_EQ(model().focusToken(), 1);
    EXPECT_EQ(window().windowTitle(), QStringLiteral("Color Picker"));
    EXPECT_EQ(window().size(), QSize(400, 600));
    EXPECT_EQ(window().minimumSize(), QSize(380, 440));
}

TEST_F(ColorPickerWindowTest, TypingFillsEveryRow) {
    show();
    type(QStringLiteral("#FF0080"));
    EXPECT_EQ(model().parsed(), SRGBColor(1.0, 0.0, 128.0 / 255.0));
    EXPECT_EQ(window().formats().rows().size(), 21);
    EXPECT_EQ(window().formats().row(ColorFormat::cssHSL)->value(),
              QStringLiteral("hsl(330 100% 50%)"));
    EXPECT_EQ(window().formats().row(ColorFormat::javaRGBA)->value(),
              QStringLiteral("new Color(255, 0, 128, 255)"));
    EXPECT_FALSE(window().input().isFailed());
}

TEST_F(ColorPickerWindowTest, AFailedParseMarksTheFieldAndKeepsTheRowsInPlace) {
    show();
    type(QStringLiteral("rgb(1 2"));
    EXPECT_TRUE(window().input().isFailed());
    EXPECT_TRUE(window().formats().isVisible());
    for (const FormatRow* row : window().formats().rows()) {
        EXPECT_EQ(row->value(), QStringLiteral("\u2014"));
        EXPECT_FALSE(row->isEnabled());
    }
    EXPECT_FALSE(button("Copy color")->isEnabled());
}

TEST_F(ColorPickerWindowTest, AFailedParseIsExplainedAboveTheRowsAndOnlyThen) {
    show();
    type(QStringLiteral("redd"));
    const Label* message =
        label("Couldn't parse this color. Try a hex (#ff0080), rgb(), hsl(), or a CSS color name.");
    ASSERT_TRUE(message);
    EXPECT_TRUE(message->isVisible());
    QCoreApplication::processEvents();
    EXPECT_LT(message->mapTo(&window().formats(), QPoint(0, message->height())).y(),
              window().formats().rows().first()->y());
    type(QStringLiteral("red"));
    EXPECT_FALSE(message->isVisible());
}

TEST_F(ColorPickerWindowTest, RowsStandByGroupsUnderTitlesInCapitalsWithADividerBetweenGroups) {
    show();
    type(QStringLiteral("red"));
    QStringList titles;
    for (const Label* title : window().formats().findChildren<Label*>()) {
        if (title->isVisible())
            titles.append(title->text());
    }
    EXPECT_EQ(titles, (QStringList{QStringLiteral("WEB"), QStringLiteral("NSCOLOR"),
                                   QStringLiteral("UICOLOR"), QStringLiteral("SWIFTUI"),
                                   QStringLiteral("OBJECTIVE-C"), QStringLiteral(".NET"),
                                   QStringLiteral("JAVA"), QStringLiteral("ANDROID")}));
    int dividers = 0;
    for (const Hairline* line : window().formats().findChildren<Hairline*>())
        dividers += line->isVisible() ? 1 : 0;
    EXPECT_EQ(dividers, 7);
    EXPECT_EQ(window().formats().row(ColorFormat::cssRGB)->toolTip(),
              QStringLiteral("Copy as CSS RGB"));
}

TEST_F(ColorPickerWindowTest, TheEmptyStateAndTheFieldSayWhatToDo) {
    show();
    EXPECT_EQ(window().input().placeholderText(), QStringLiteral("Paste or type a color"));
    for (const char* words :
         {"Pick a color to see every format", "Then copy the format you need and carry on!"}) {
        const Label* shown = label(words);
        ASSERT_TRUE(shown) << words;
        EXPECT_TRUE(shown->isVisible()) << words;
    }
}

TEST_F(ColorPickerWindowTest, WithoutATextThereIsTheEmptyStateAndNoClearButton) {
    show();
    EXPECT_FALSE(window().formats().isVisible());
    EXPECT_FALSE(button("Clear")->isVisible());
    type(QStringLiteral(" "));
    EXPECT_TRUE(window().formats().isVisible()) << "a blank is a text";
    EXPECT_FALSE(window().input().isFailed());
}

TEST_F(ColorPickerWindowTest, TheClearButtonEmptiesTheFieldAndGivesItTheKeyboard) {
    show();
    type(QStringLiteral("red"));
    window().formats().rows().first()->setFocus();
    QTest::mouseClick(button("Clear"), Qt::LeftButton);
    EXPECT_EQ(model().input(), QString());
    EXPECT_FALSE(model().parsed());
    EXPECT_TRUE(window().input().hasFocus());
}

TEST_F(ColorPickerWindowTest, AClickOnARowCopiesItAndClosesTheWindow) {
    show();
    type(QStringLiteral("red"));
    QTest::mouseClick(window().formats().row(ColorFormat::cssRGB), Qt::LeftButton);
    EXPECT_EQ(m_fixture.pasteboard.copies(), QStringList{QStringLiteral("rgb(255 0 0)")});
    EXPECT_EQ(m_controller.window(), nullptr);
    EXPECT_EQ(m_fixture.soundPlayer.played().size(), 1);
}

TEST_F(ColorPickerWindowTest, TheCopyButtonCopiesInTheFormatOfTheSettings) {
    m_fixture.settings.setCloseConvertDialogOnCopy(false);
    show();
    type(QStringLiteral("red"));
    QTest::mouseClick(button("Copy color"), Qt::LeftButton);
    EXPECT_EQ(m_fixture.pasteboard.copies(), QStringList{QStringLiteral("#FF0000")});
    EXPECT_NE(m_controller.window(), nullptr);
}

TEST_F(ColorPickerWindowTest, TheToggleIsTheSettingAndIsStoredAtOnce) {
    show();
    EXPECT_TRUE(button("Close dialog after copying")->isChecked());
    QTest::mouseClick(button("Close dialog after copying"), Qt::LeftButton);
    EXPECT_FALSE(m_fixture.settings.closeConvertDialogOnCopy());
    EXPECT_EQ(m_fixture.defaults.read<bool>(QStringLiteral("closeConvertDialogOnCopy")), false);
    m_fixture.settings.setCloseConvertDialogOnCopy(true);
    EXPECT_TRUE(button("Close dialog after copying")->isChecked());
}

TEST_F(ColorPickerWindowTest, ClosingAndReopeningKeepsTextAndColorInANewWindow) {
    show();
    type(QStringLiteral(" #FF0080"));
    const QPointer<ColorPickerWindow> first = &window();
    QTest::keyClick(&window(), Qt::Key_Escape);
    EXPECT_EQ(m_controller.window(), nullptr);
    ColorWindowFixture::deleteDropped();
    EXPECT_TRUE(first.isNull());
    show();
    EXPECT_EQ(window().input().text(), QStringLiteral(" #FF0080"));
    EXPECT_NEAR(window().selectors().components().hue, 330.0 / 360.0, 0.002);
}

TEST_F(ColorPickerWindowTest, CtrlWClosesToo) {
    show();
    QTest::keyClick(&window().input(), Qt::Key_W, Qt::ControlModifier);
    EXPECT_EQ(m_controller.window(), nullptr);
}

TEST_F(ColorPickerWindowTest, ShowingAgainBringsTheSameWindowForward) {
    show();
    const ColorPickerWindow* first = &window();
    m_fixture.pasteboard.setTextFromAnotherProgram(QStringLiteral("blue"));
    show();
    EXPECT_EQ(&window(), first);
    EXPECT_EQ(window().input().text(), QStringLiteral("blue"));
    EXPECT_EQ(model().focusToken(), 2);
}

TEST_F(ColorPickerWindowTest, TheWindowGoesAwayForASampleAndComesBackWithItsColor) {
    show();
    QTest::mouseClick(button("Pick color from screen"), Qt::LeftButton);
    EXPECT_FALSE(window().isVisible());
    EXPECT_FALSE(m_fixture.sampler.isUp()) << "first the screen must be free of the window";
    m_fixture.scheduler.advance(200);
    ASSERT_TRUE(m_fixture.sampler.isUp());
    m_controller.show();
    EXPECT_FALSE(window().isVisible()) << "a shortcut during the sample does not cover it";
    m_fixture.sampler.pick(SRGBColor(0.1, 0.2, 0.3));
    EXPECT_TRUE(window().isVisible());
    EXPECT_EQ(model().parsed(), SRGBColor(0.1, 0.2, 0.3));
    EXPECT_EQ(m_fixture.checks(), 1);
    EXPECT_TRUE(m_fixture.pasteboard.copies().isEmpty());
}

TEST_F(ColorPickerWindowTest, ACancelledSampleBringsTheWindowBackAsItWas) {
    show();
    type(QStringLiteral("red"));
    QTest::mouseClick(button("Pick color from screen"), Qt::LeftButton);
    m_fixture.scheduler.advance(200);
    m_fixture.sampler.cancel();
    EXPECT_TRUE(window().isVisible());
    EXPECT_EQ(window().input().text(), QStringLiteral("red"));
    EXPECT_EQ(m_fixture.checks(), 0);
}

TEST_F(ColorPickerWindowTest, ASampleThatOutlivesTheProgramTouchesNothing) {
    auto controller = std::make_unique<ColorPickerWindowController>(m_fixture.surroundings);
    controller->show();
    controller->model().pickAction();
    m_fixture.scheduler.advance(200);
    controller.reset();
    m_fixture.sampler.pick(SRGBColor());
    EXPECT_EQ(m_fixture.checks(), 0);
}

TEST_F(ColorPickerWindowTest, ASelectorChangesTheColorAndTheField) {
    show();
    QTest::keyClick(&window().selectors().hueSlider(), Qt::Key_End);
    m_fixture.scheduler.advance(0);
    ASSERT_TRUE(model().parsed());
    EXPECT_EQ(window().input().text(), m_fixture.copier.text(*model().parsed()));
    EXPECT_EQ(window().selectors().components().hue, 1.0);
}

TEST_F(ColorPickerWindowTest, ThePreviewIsCalledByTheBytesThatACopyHas) {
    show();
    model().applyColor(SRGBColor(0.6 / 255.0, 254.4 / 255.0, 0.5));
    EXPECT_EQ(window().findChild<PreviewSwatch*>()->accessibleDescription(),
              QStringLiteral("#01FE80"));
    EXPECT_EQ(window().input().text(), QStringLiteral("#01FE80"));
}

TEST_F(ColorPickerWindowTest, ArrowKeysMoveThroughTheRowsAndEnterCopies) {
    m_fixture.settings.setCloseConvertDialogOnCopy(false);
    show();
    type(QStringLiteral("red"));
    const auto& rows = window().formats().rows();
    rows.first()->setFocus(Qt::TabFocusReason);
    QTest::keyClick(rows[0], Qt::Key_Down);
    QTest::keyClick(rows[1], Qt::Key_Down);
    EXPECT_TRUE(rows[2]->hasFocus());
    QTest::keyClick(rows[2], Qt::Key_Return);
    EXPECT_EQ(m_fixture.pasteboard.copies().last(), QStringLiteral("rgb(255 0 0)"));
    QTest::keyClick(rows[2], Qt::Key_End);
    EXPECT_TRUE(rows.last()->hasFocus());
    QTest::keyClick(rows.last(), Qt::Key_Down);
    EXPECT_TRUE(rows.last()->hasFocus());
    QTest::keyClick(rows.last(), Qt::Key_Home);
    EXPECT_TRUE(rows.first()->hasFocus());
}

TEST_F(ColorPickerWindowTest, NoValueIsCutInTheNarrowestWindow) {
    show();
    type(QStringLiteral("rgb(228 87 46 / 0.75)"));
    window().resize(380, 440);
    QCoreApplication::processEvents();
    for (const FormatRow* row : window().formats().rows()) {
        EXPECT_EQ(row->height(), row->heightForWidth(row->width())) << qPrintable(row->value());
        EXPECT_GE(row->x(), 0);
        EXPECT_LE(row->x() + row->width(), 380);
    }
}

TEST_F(ColorPickerWindowTest, ScreenReadersMeetEveryControlByName) {
    show();
    type(QStringLiteral("red"));
    const QStringList controls = controlsOf(&window());
    EXPECT_EQ(controls.size(), 3 + 1 + 4 + 21) << controls.join(u'\n').toStdString();
    for (const QString& control : controls)
        EXPECT_FALSE(control.endsWith(u'?')) << control.toStdString();
    EXPECT_TRUE(controls.contains(QString::number(QAccessible::Button) +
                                  QStringLiteral(" CSS RGB, rgb(255 0 0)")));
}

TEST_F(ColorPickerWindowTest, FrameAndSizeComeBackAfterAClose) {
    show();
    window().resize(450, 500);
    window().move(60, 70);
    const QPoint place = window().pos();
    window().close();
    show();
    EXPECT_EQ(window().size(), QSize(450, 500));
    EXPECT_EQ(window().pos(), place);
}

TEST_F(ColorPickerWindowTest, RowsFollowASettingThatChangesWhileTheyAreShown) {
    show();
    type(QStringLiteral("red"));
    m_fixture.defaults.setValue(QStringLiteral("useHashPrefix"), false);
    EXPECT_EQ(window().formats().row(ColorFormat::hex)->value(), QStringLiteral("FF0000"));
}

} // namespace
} // namespace dropshade
