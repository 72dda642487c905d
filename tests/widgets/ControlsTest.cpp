// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "widgets/ColorWell.h"
#include "widgets/IconButton.h"
#include "widgets/Label.h"
#include "widgets/Picker.h"
#include "widgets/Pill.h"
#include "widgets/SegmentedControl.h"
#include "widgets/Slider.h"
#include "widgets/TextButton.h"
#include "widgets/TextField.h"
#include "widgets/Toggle.h"

#include "support/FakeAppearance.h"

#include <QAccessible>
#include <QApplication>
#include <QRadioButton>
#include <QTest>

#include <gtest/gtest.h>

namespace dropshade {
namespace {

QAccessible::Role roleOf(QWidget& widget) {
    return QAccessible::queryAccessibleInterface(&widget)->role();
}

QString nameOf(QWidget& widget) {
    return QAccessible::queryAccessibleInterface(&widget)->text(QAccessible::Name);
}

class ControlsTest : public testing::Test {
protected:
    FakeAppearance m_appearance;
    Look m_look{m_appearance};

    void SetUp() override { m_appearance.setReducedMotion(true); }
};

TEST_F(ControlsTest, AnIconButtonTellsItsNameInItsTooltipAndToAScreenReader) {
    IconButton button(m_look, Icon::Copy, QStringLiteral("Copy"));
    EXPECT_EQ(button.toolTip(), QStringLiteral("Copy"));
    EXPECT_EQ(nameOf(button), QStringLiteral("Copy"));
    EXPECT_EQ(roleOf(button), QAccessible::Button);
}

TEST_F(ControlsTest, ButtonsAreReachedByTabAndNotByAClick) {
    TextButton button(m_look, TextButton::Kind::Default, QStringLiteral("Done"));
    EXPECT_EQ(button.focusPolicy(), Qt::TabFocus);
    EXPECT_EQ(nameOf(button), QStringLiteral("Done"));
}

TEST_F(ControlsTest, AToggleIsACheckBoxThatTheSpaceBarFlips) {
    Toggle toggle(m_look, QStringLiteral("Show recent colors"));
    toggle.show();
    EXPECT_EQ(roleOf(toggle), QAccessible::CheckBox);
    QTest::keyClick(&toggle, Qt::Key_Space);
    EXPECT_TRUE(toggle.isChecked());
    QTest::mouseClick(&toggle, Qt::LeftButton);
    EXPECT_FALSE(toggle.isChecked());
}

TEST_F(ControlsTest, AControlIsDrawnAnewWhenTheDesktopTurnsDark) {
    TextButton button(m_look, TextButton::Kind::Plain, QStringLiteral("Cancel"));
    button.show();
    const QImage light = button.grab().toImage();
    m_appearance.setDark(true);
    EXPECT_NE(button.grab().toImage(), light);
}

TEST_F(ControlsTest, AFailedFieldShowsItsReasonAndAnotherEdge) {
    TextField field(m_look, TextField::Content::Value);
    field.setFailure(QStringLiteral("Couldn't parse this color"));
    field.show();
    const QImage fine = field.grab().toImage();
    EXPECT_FALSE(field.isFailed());
    field.setFailed(true);
    EXPECT_NE(field.grab().toImage(), fine);
    bool hasReason = false;
    for (const QWidget* child : field.findChildren<QWidget*>())
        hasReason |= child->isVisible() &&
                     child->accessibleName() == QStringLiteral("Couldn't parse this color");
    EXPECT_TRUE(hasReason);
}

TEST_F(ControlsTest, AFieldShowsTheBeginningOfALongTextWhileNobodyTypesThere) {
    TextField field(m_look, TextField::Content::Value);
    field.setText(QStringLiteral("https://a.server.with.a.long.name:2379"));
    EXPECT_EQ(field.cursorPosition(), 0);
    field.show();
    QApplication::setActiveWindow(&field);
    field.setFocus(Qt::TabFocusReason);
    QTest::keyClick(&field, Qt::Key_End);
    QTest::keyClicks(&field, QStringLiteral("0"));
    EXPECT_EQ(field.cursorPosition(), field.text().size());
    field.clearFocus();
    EXPECT_EQ(field.cursorPosition(), 0);
}

TEST_F(ControlsTest, TheClearButtonIsThereOnlyWhileThereIsText) {
    TextField field(m_look, TextField::Content::Words);
    field.setClearButton(QStringLiteral("Clear"));
    field.show();
    auto* clear = field.findChild<IconButton*>();
    EXPECT_FALSE(clear->isVisible());
    field.setText(QStringLiteral("a"));
    EXPECT_TRUE(clear->isVisible());
    int cleared = 0;
    QObject::connect(&field, &TextField::cleared, [&cleared] { ++cleared; });
    QTest::mouseClick(clear, Qt::LeftButton);
    EXPECT_EQ(cleared, 1);
    EXPECT_EQ(field.text(), QStringLiteral("a")) << "whoever listens empties the field";
}

TEST_F(ControlsTest, APickerStepsThroughItsRowsWithTheArrowKeysAndPastHeaders) {
    Picker picker(m_look, QStringLiteral("Format"));
    picker.addHeader(QStringLiteral("Web"));
    picker.addRow(QStringLiteral("HEX"), 1);
    picker.addSeparator();
    picker.addRow(QStringLiteral("HEXA"), 2);
    picker.setCurrentValue(1);
    picker.show();
    QList<int> picked;
    QObject::connect(&picker, &Picker::picked, [&picked](int index) { picked.append(index); });
    EXPECT_EQ(picker.count(), 2);
    QTest::keyClick(&picker, Qt::Key_Down);
    QTest::keyClick(&picker, Qt::Key_Down);
    QTest::keyClick(&picker, Qt::Key_Home);
    EXPECT_EQ(picked, (QList<int>{1, 0}));
    EXPECT_EQ(picker.currentText(), QStringLiteral("HEX"));
    EXPECT_EQ(picker.accessibleDescription(), QStringLiteral("HEX"));
}

TEST_F(ControlsTest, APickerDoesNotEmitWhatTheProgramSets) {
    Picker picker(m_look, QStringLiteral("Format"));
    picker.addRow(QStringLiteral("HEX"));
    int picked = 0;
    QObject::connect(&picker, &Picker::picked, [&picked] { ++picked; });
    picker.setCurrentIndex(0);
    picker.setCurrentValue(QStringLiteral("no row has it"));
    EXPECT_EQ(picked, 0);
    EXPECT_EQ(picker.currentText(), QString());
}

TEST_F(ControlsTest, ASegmentedControlMovesItsSelectionWithTheArrowKeys) {
    SegmentedControl control(m_look, QStringLiteral("Measure"),
                             {QStringLiteral("WCAG 2"), QStringLiteral("APCA")});
    control.setCurrentIndex(0);
    control.show();
    QList<int> picked;
    QObject::connect(&control, &SegmentedControl::picked,
                     [&picked](int index) { picked.append(index); });
    auto segments = control.findChildren<QRadioButton*>();
    ASSERT_EQ(segments.size(), 2);
    EXPECT_EQ(roleOf(*segments[0]), QAccessible::RadioButton);
    control.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&control));
    segments[0]->setFocus();
    QTest::keyClick(segments[0], Qt::Key_Right);
    EXPECT_EQ(picked, QList<int>{1});
    EXPECT_EQ(control.currentIndex(), 1);
    control.setCurrentIndex(0);
    EXPECT_EQ(picked, QList<int>{1}) << "what the program sets is not emitted";
}

TEST_F(ControlsTest, ASliderGoesWhereItIsPressedAndByTheKeys) {
    Slider slider(m_look, QStringLiteral("Swatch size"));
    slider.setRange(1, 9);
    slider.resize(200, slider.sizeHint().height());
    slider.show();
    QTest::mouseClick(&slider, Qt::LeftButton, {}, QPoint(199, 12));
    EXPECT_EQ(slider.value(), 9);
    QTest::mouseClick(&slider, Qt::LeftButton, {}, QPoint(0, 12));
    EXPECT_EQ(slider.value(), 1);
    QTest::keyClick(&slider, Qt::Key_Right);
    EXPECT_EQ(slider.value(), 2);
    EXPECT_EQ(roleOf(slider), QAccessible::Slider);
    EXPECT_EQ(nameOf(slider), QStringLiteral("Swatch size"));
}

TEST_F(ControlsTest, APillSaysItsVerdictInAWholeSentence) {
    Pill pill(m_look);
    pill.setVerdict(QStringLiteral("AA"), true, QStringLiteral("AA 21.00:1 meets the minimum"));
    EXPECT_EQ(pill.toolTip(), QStringLiteral("AA 21.00:1 meets the minimum"));
    EXPECT_EQ(nameOf(pill), QStringLiteral("AA 21.00:1 meets the minimum"));
    EXPECT_EQ(roleOf(pill), QAccessible::StaticText);
}

TEST_F(ControlsTest, CapitalsAreForTheEyeAlone) {
    Label label(m_look, TextStyle::Overline, Label::Tone::Secondary, QStringLiteral("Web"));
    EXPECT_EQ(label.text(), QStringLiteral("WEB"));
    EXPECT_EQ(nameOf(label), QStringLiteral("Web"));
}

TEST_F(ControlsTest, AWellTellsItsColor) {
    ColorWell well(m_look, QStringLiteral("Edit color"), 32);
    well.setColor(QColor(0xE4, 0x57, 0x2E));
    EXPECT_EQ(well.accessibleDescription(), QStringLiteral("#E4572E"));
}

} // namespace
} // namespace dropshade
