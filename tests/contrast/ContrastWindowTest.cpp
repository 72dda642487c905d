// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "contrast/ContrastWindow.h"

#include "ColorSelector/SelectorPanel.h"
#include "app/RecentColor.h"
#include "contrast/ColorInputRow.h"
#include "contrast/ContrastWindowController.h"
#include "contrast/InlineColorWell.h"
#include "support/AccessibleTree.h"
#include "support/ColorWindowFixture.h"
#include "support/QtPrinters.h"
#include "widgets/IconButton.h"
#include "widgets/Label.h"
#include "widgets/Menu.h"
#include "widgets/Pill.h"
#include "widgets/SegmentedControl.h"
#include "widgets/TextButton.h"
#include "widgets/TextField.h"

#include <QTest>

#include <gtest/gtest.h>

namespace dropshade {
namespace {

using Target = ContrastModel::SwatchTarget;

class ContrastWindowTest : public testing::Test {
protected:
    ColorWindowFixture m_fixture;
    int m_beeps = 0;
    ContrastWindowController m_controller{m_fixture.surroundings, [this] { ++m_beeps; }};

    void SetUp() override { show(); }

    void show() {
        m_controller.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(m_controller.window()));
        QCoreApplication::processEvents();
    }
    ContrastModel& model() { return *m_controller.model(); }
    ContrastWindow& window() { return *m_controller.window(); }
    TextField& field(Target target) { return window().row(target).field(); }

    QStringList pills() {
        QStringList words;
        for (const Pill* pill : window().findChildren<Pill*>())
            words.append(pill->text() + (pill->passes() ? u'+' : u'-'));
        return words;
    }
    TextButton* button(QWidget* inside, const char* word) {
        for (auto* found : inside->findChildren<TextButton*>()) {
            if (found->text() == QLatin1String(word))
                return found;
        }
        return nullptr;
    }
    IconButton* iconButton(const char* name) {
        for (auto* found : window().findChildren<IconButton*>()) {
            if (found->accessibleName() == QString::fromUtf8(name))
                return found;
        }
        return nullptr;
    }
    static QAction* row(const QMenu& menu, const char* title) {
        for (QAction* action : menu.actions()) {
            if (action->text() == QString::fromUtf8(title))
                return action;
        }
        return nullptr;
    }
    std::unique_ptr<Menu> menu(Target target) {
        m_menus.emplace_back(std::make_unique<ContrastActionMenu>(m_fixture.surroundings,
                                                                  m_announcer, model(), target));
        return m_menus.back()->build();
    }

    Announcer m_announcer;
    std::vector<std::unique_ptr<ContrastActionMenu>> m_menus;
};

TEST_F(ContrastWindowTest, AFirstOpeningIsBlackOnWhiteAndPassesEverything) {
    EXPECT_EQ(window().windowTitle(), QStringLiteral("Check Contrast"));
    EXPECT_EQ(field(Target::background).text(), QStringLiteral("#FFFFFF"));
    EXPECT_EQ(field(Target::foreground).text(), QStringLiteral("#000000"));
    EXPECT_EQ(pills(), (QStringList{QStringLiteral("AA+"), QStringLiteral("AAA+"),
                                    QStringLiteral("AA+"), QStringLiteral("AAA+")}));
}

TEST_F(ContrastWindowTest, HasItsMeasuresInBothModes) {
    EXPECT_EQ(window().width(), 420);
    const int before = window().height();
    m_fixture.settings.setContrastAlgorithm(ContrastAlgorithm::apca);
    QCoreApplication::processEvents();
    EXPECT_EQ(window().height(), before + 44);
    EXPECT_EQ(pills(), (QStringList{QStringLiteral("Lc 75+"), QStringLiteral("Lc 45+"),
                                    QStringLiteral("Lc 30+")}));
    m_fixture.settings.setContrastAlgorithm(ContrastAlgorithm::wcag);
    QCoreApplication::processEvents();
    EXPECT_EQ(window().height(), before);
}

TEST_F(ContrastWindowTest, NamesItsMeasureAndSaysWhatItIs) {
    const auto words = [this] {
        QStringList result;
        for (const Label* label : window().findChildren<Label*>())
            result.append(label->text());
        return result;
    };
    EXPECT_TRUE(words().contains(QStringLiteral("RATIO")));
    EXPECT_TRUE(words().contains(QStringLiteral("21:1")));
    m_fixture.settings.setContrastAlgorithm(ContrastAlgorithm::apca);
    EXPECT_TRUE(words().contains(QStringLiteral("APCA")));
    EXPECT_TRUE(words().contains(QStringLiteral("Lc 106")));
    QStringList toolTips;
    for (const QWidget* widget : window().findChildren<QWidget*>())
        toolTips.append(widget->toolTip());
    for (const char* text :
         {"APCA Lc — perceptual lightness contrast (APCA-W3). Sign indicates polarity (positive = "
          "dark text on light background).",
          "Choose how contrast is measured. WCAG 2 reports a luminance ratio; APCA reports "
          "perceptual lightness contrast (Lc).",
          "Swap background and foreground", "Pick color from screen", "Copy", "More actions",
          "Edit color", "Couldn't parse this color"})
        EXPECT_TRUE(toolTips.contains(QString::fromUtf8(text))) << text;
}

TEST_F(ContrastWindowTest, ShowingAgainBringsTheSameWindowForwardAndItsSizeIsFixed) {
    const ContrastWindow* first = &window();
    show();
    EXPECT_EQ(&window(), first);
    EXPECT_EQ(window().minimumSize(), window().maximumSize());
}

TEST_F(ContrastWindowTest, ThePickerStoresTheSetting) {
    auto segments = window().algorithmPicker().findChildren<QAbstractButton*>();
    QTest::mouseClick(segments[1], Qt::LeftButton);
    EXPECT_EQ(m_fixture.settings.contrastAlgorithm(), ContrastAlgorithm::apca);
}

TEST_F(ContrastWindowTest, TypingChangesTheColorAndLeavingANonColorMarksTheField) {
    TextField& text = field(Target::foreground);
    text.setFocus();
    text.selectAll();
    QTest::keyClicks(&text, QStringLiteral("#777"));
    EXPECT_EQ(model().fgColor(), SRGBColor(0x77 / 255.0, 0x77 / 255.0, 0x77 / 255.0));
    EXPECT_FALSE(text.isFailed());
    QTest::keyClicks(&text, QStringLiteral("zz"));
    EXPECT_FALSE(text.isFailed()) << "not before the user leaves";
    field(Target::background).setFocus();
    EXPECT_TRUE(text.isFailed());
    EXPECT_EQ(model().fgColor(), SRGBColor(0x77 / 255.0, 0x77 / 255.0, 0x77 / 255.0));
    model().setFgColor(SRGBColor());
    EXPECT_FALSE(text.isFailed());
    EXPECT_EQ(text.text(), QStringLiteral("#000000"));
}

TEST_F(ContrastWindowTest, SwapAndDone) {
    QTest::mouseClick(button(&window(), "Swap Colors"), Qt::LeftButton);
    EXPECT_EQ(model().bgColor(), SRGBColor());
    EXPECT_EQ(field(Target::background).text(), QStringLiteral("#000000"));
    QTest::mouseClick(button(&window(), "Done"), Qt::LeftButton);
    EXPECT_EQ(m_controller.window(), nullptr);
    ColorWindowFixture::deleteDropped();
    show();
    EXPECT_EQ(model().bgColor(), SRGBColor()) << "the pair comes back";
}

TEST_F(ContrastWindowTest, EscapeAndCtrlWClose) {
    QTest::keyClick(&window(), Qt::Key_Escape);
    EXPECT_EQ(m_controller.window(), nullptr);
    show();
    QTest::keyClick(&window(), Qt::Key_W, Qt::ControlModifier);
    EXPECT_EQ(m_controller.window(), nullptr);
}

TEST_F(ContrastWindowTest, OpeningDoesNotReadTheClipboard) {
    window().close();
    m_fixture.pasteboard.setTextFromAnotherProgram(QStringLiteral("red"));
    show();
    EXPECT_EQ(model().bgColor(), SRGBColor(1, 1, 1));
}

TEST_F(ContrastWindowTest, TheWellFollowsLiveAndCancelTakesItBack) {
    InlineColorWell& well = window().row(Target::background).well();
    QTest::mouseClick(&well, Qt::LeftButton);
    ASSERT_TRUE(well.popover());
    auto* panel = well.popover()->findChild<SelectorPanel*>();
    QTest::keyClick(&panel->square(), Qt::Key_End);
    EXPECT_NE(model().bgColor(), SRGBColor(1, 1, 1));
    QTest::mouseClick(button(well.popover(), "Cancel"), Qt::LeftButton);
    EXPECT_EQ(model().bgColor(), SRGBColor(1, 1, 1));
}

TEST_F(ContrastWindowTest, LeavingTheWellKeepsItsColor) {
    InlineColorWell& well = window().row(Target::background).well();
    QTest::mouseClick(&well, Qt::LeftButton);
    auto* panel = well.popover()->findChild<SelectorPanel*>();
    QTest::keyClick(&panel->square(), Qt::Key_End);
    const SRGBColor changed = model().bgColor();
    QTest::keyClick(well.popover(), Qt::Key_Escape);
    EXPECT_EQ(model().bgColor(), changed);
    EXPECT_NE(m_controller.window(), nullptr) << "Escape closes the popover alone";
}

TEST_F(ContrastWindowTest, CopyingCountsForNothing) {
    for (auto* found : window().findChildren<IconButton*>()) {
        if (found->toolTip() == QStringLiteral("Copy")) {
            QTest::mouseClick(found, Qt::LeftButton);
            break;
        }
    }
    EXPECT_EQ(m_fixture.pasteboard.copies(), QStringList{QStringLiteral("#FFFFFF")});
    EXPECT_EQ(m_fixture.checks(), 0);
    EXPECT_TRUE(loadRecentColors(m_fixture.defaults).isEmpty());
    EXPECT_EQ(m_fixture.soundPlayer.played().size(), 1);
}

TEST_F(ContrastWindowTest, ACancelledSampleBringsTheWindowBackAsItWas) {
    model().pickAction(Target::foreground);
    m_fixture.scheduler.advance(200);
    EXPECT_FALSE(window().isVisible());
    m_fixture.sampler.cancel();
    EXPECT_TRUE(window().isVisible());
    EXPECT_EQ(model().fgColor(), SRGBColor());
    EXPECT_EQ(m_fixture.checks(), 0);
}

TEST_F(ContrastWindowTest, ASampleIsCountedAndBecomesTheColor) {
    model().pickAction(Target::foreground);
    m_fixture.scheduler.advance(200);
    m_fixture.sampler.pick(SRGBColor(1, 0, 0));
    EXPECT_EQ(model().fgColor(), SRGBColor(1, 0, 0));
    EXPECT_EQ(m_fixture.checks(), 1);
    EXPECT_TRUE(window().isVisible());
}

TEST_F(ContrastWindowTest, TheMenuHasItsSectionsInOrder) {
    QStringList titles;
    const auto built = menu(Target::background);
    for (const QAction* action : built->actions())
        titles.append(action->isSeparator() ? QStringLiteral("-") : action->text());
    EXPECT_EQ(
        titles,
        (QStringList{QStringLiteral("Copy As"), QStringLiteral("Paste from Clipboard"),
                     QStringLiteral("-"), QStringLiteral("Fix for Normal Text"),
                     QStringLiteral("AA (4.5:1)"), QStringLiteral("AAA (7:1)"), QStringLiteral("-"),
                     QStringLiteral("Fix for Large Text (≥ 18pt or ≥ 14pt bold)"),
                     QStringLiteral("AA (3:1)"), QStringLiteral("AAA (4.5:1)")}));
}

TEST_F(ContrastWindowTest, UnderApcaTheMenuHasItsThreeFixesAndTheyWork) {
    m_fixture.settings.setContrastAlgorithm(ContrastAlgorithm::apca);
    model().setFgColor(SRGBColor(0.8, 0.8, 0.8));
    const auto built = menu(Target::background);
    QStringList titles;
    for (const QAction* action : built->actions().mid(3))
        titles.append(action->text());
    EXPECT_EQ(titles,
              (QStringList{QStringLiteral("Fix for APCA"), QStringLiteral("Normal text (Lc 75)"),
                           QStringLiteral("Large text (Lc 45)"),
                           QStringLiteral("Graphics and UI (Lc 30)")}));
    row(*built, "Large text (Lc 45)")->trigger();
    m_fixture.scheduler.advance(0);
    EXPECT_GE(std::abs(model().lc()), 45.0);
    EXPECT_EQ(model().fgColor(), SRGBColor(0.8, 0.8, 0.8));
    EXPECT_NE(model().bgColor(), SRGBColor(1, 1, 1));
}

TEST_F(ContrastWindowTest, CopyAsHoldsEveryFormatUnderItsGroup) {
    const auto built = menu(Target::background);
    const QMenu* formats = row(*built, "Copy As")->menu();
    int enabled = 0;
    int headers = 0;
    int separators = 0;
    for (const QAction* action : formats->actions()) {
        separators += action->isSeparator() ? 1 : 0;
        enabled += !action->isSeparator() && action->isEnabled() ? 1 : 0;
        headers += !action->isSeparator() && !action->isEnabled() ? 1 : 0;
    }
    EXPECT_EQ(enabled, 21);
    EXPECT_EQ(headers, 8);
    EXPECT_EQ(separators, 7);
    row(*formats, "CSS RGB")->trigger();
    EXPECT_EQ(m_fixture.pasteboard.copies(), QStringList{QStringLiteral("rgb(255 255 255)")});
    EXPECT_EQ(m_fixture.checks(), 0);
    EXPECT_TRUE(loadRecentColors(m_fixture.defaults).isEmpty());
}

TEST_F(ContrastWindowTest, PasteIsThereForAColorAndReadsTheClipboardAnew) {
    m_fixture.pasteboard.setTextFromAnotherProgram(QStringLiteral("hello"));
    EXPECT_FALSE(row(*menu(Target::foreground), "Paste from Clipboard")->isEnabled());
    m_fixture.pasteboard.setTextFromAnotherProgram(QStringLiteral("red"));
    const auto built = menu(Target::foreground);
    ASSERT_TRUE(row(*built, "Paste from Clipboard")->isEnabled());
    m_fixture.pasteboard.setTextFromAnotherProgram(QStringLiteral("blue"));
    row(*built, "Paste from Clipboard")->trigger();
    EXPECT_EQ(model().fgColor(), SRGBColor()) << "after the menu has gone";
    m_fixture.scheduler.advance(0);
    EXPECT_EQ(model().fgColor(), SRGBColor(0, 0, 1));
}

TEST_F(ContrastWindowTest, AFixOfARowMovesThatRowsColor) {
    model().setFgColor(SRGBColor(0.7, 0.7, 0.2));
    const auto built = menu(Target::foreground);
    ASSERT_TRUE(row(*built, "AA (4.5:1)")->isEnabled());
    row(*built, "AA (4.5:1)")->trigger();
    m_fixture.scheduler.advance(0);
    EXPECT_GE(model().ratio(), 4.5);
    EXPECT_EQ(model().bgColor(), SRGBColor(1, 1, 1));
    EXPECT_FALSE(row(*menu(Target::foreground), "AA (4.5:1)")->isEnabled());
}

TEST_F(ContrastWindowTest, AnImpossibleFixBeeps) {
    model().setBgColor(SRGBColor(0x77 / 255.0, 0x77 / 255.0, 0x77 / 255.0));
    model().setFgColor(SRGBColor(0.5, 0.5, 0.5));
    row(*menu(Target::foreground), "AAA (7:1)")->trigger();
    m_fixture.scheduler.advance(0);
    EXPECT_EQ(m_beeps, 1);
}

TEST_F(ContrastWindowTest, WhatAButtonBringsReplacesATypedTextAndIsNotUndoneByIt) {
    TextField& text = field(Target::foreground);
    const auto type = [&text] {
        text.setFocus();
        text.selectAll();
        QTest::keyClicks(&text, QStringLiteral("#999"));
    };
    type();
    QTest::mouseClick(button(&window(), "Swap Colors"), Qt::LeftButton);
    EXPECT_EQ(text.text(), QStringLiteral("#FFFFFF"));
    EXPECT_EQ(field(Target::background).text(), QStringLiteral("#999999"));

    type();
    QTest::mousePress(&window().row(Target::foreground).actionButton(), Qt::LeftButton);
    model().setBgColor(SRGBColor(1, 1, 1));
    row(*menu(Target::foreground), "AA (4.5:1)")->trigger();
    m_fixture.scheduler.advance(0);
    EXPECT_EQ(text.text(), m_fixture.copier.text(model().fgColor()));

    type();
    QTest::mouseClick(iconButton("Foreground — pick color from screen"), Qt::LeftButton);
    m_fixture.scheduler.advance(200);
    m_fixture.sampler.pick(SRGBColor(1, 0, 0));
    EXPECT_EQ(text.text(), QStringLiteral("#FF0000"));
    text.setFocus();
    field(Target::background).setFocus();
    EXPECT_EQ(model().fgColor(), SRGBColor(1, 0, 0));
}

TEST_F(ContrastWindowTest, TheWellIsCalledByTheBytesThatACopyHas) {
    // Below the half of a byte at one end, above it at the other.
    const SRGBColor color(0.6 / 255.0, 254.4 / 255.0, 0.5);
    model().setBgColor(color);
    EXPECT_EQ(window().row(Target::background).well().accessibleDescription(),
              QStringLiteral("#01FE80"));
    EXPECT_EQ(m_fixture.copier.text(color, ColorFormat::hex), QStringLiteral("#01FE80"));
}

TEST_F(ContrastWindowTest, ScreenReadersMeetEveryControlByName) {
    const QStringList controls = controlsOf(&window());
    EXPECT_EQ(controls.size(), 2 * (1 + 1 + 3) + 2 + 2) << controls.join(u'\n').toStdString();
    for (const QString& control : controls)
        EXPECT_FALSE(control.endsWith(u'?')) << control.toStdString();
    EXPECT_TRUE(controls.contains(QString::number(QAccessible::Button) +
                                  QStringLiteral(" Background — pick color from screen")));
}

TEST_F(ContrastWindowTest, TabReachesEveryControlInReadingOrderAndComesRound) {
    QStringList visited;
    QWidget* first = nullptr;
    for (int press = 0; press < 40; ++press) {
        QTest::keyClick(window().focusWidget() ? window().focusWidget() : &window(), Qt::Key_Tab);
        QWidget* now = window().focusWidget();
        if (now == first)
            break;
        if (!first)
            first = now;
        visited.append(QAccessible::queryAccessibleInterface(now)->text(QAccessible::Name));
    }
    EXPECT_EQ(visited, (QStringList{QStringLiteral("Edit color"), QStringLiteral("Background"),
                                    QStringLiteral("Background — pick color from screen"),
                                    QStringLiteral("Copy"), QStringLiteral("More actions"),
                                    QStringLiteral("Edit color"), QStringLiteral("Foreground"),
                                    QStringLiteral("Foreground — pick color from screen"),
                                    QStringLiteral("Copy"), QStringLiteral("More actions"),
                                    QStringLiteral("WCAG 2"), QStringLiteral("Swap Colors"),
                                    QStringLiteral("Done")}));
}

} // namespace
} // namespace dropshade
