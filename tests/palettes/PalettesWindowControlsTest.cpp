// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT

// The bars, the popovers and the sheet of the palettes window: what they say, and what they do.

#include "PalettesWindowFixture.h"
#include "palettes/NamePopover.h"
#include "palettes/PalettesStatusBar.h"
#include "palettes/PalettesTopBar.h"
#include "palettes/PresetList.h"
#include "palettes/PresetPickerSheet.h"
#include "palettes/SwatchPopover.h"
#include "support/QtPrinters.h"
#include "widgets/AlertWindow.h"
#include "widgets/IconButton.h"
#include "widgets/Slider.h"
#include "widgets/TextButton.h"

#include <QAbstractButton>
#include <QLabel>
#include <QLineEdit>

namespace dropshade {
namespace {

/// The window, with what its controls say.
class Controls : public Window {
protected:
    template <typename Control>
    static Control* named(QWidget* in, const char* name) {
        for (auto* control : in->findChildren<Control*>()) {
            if (control->accessibleName() == QString::fromUtf8(name) && control->isVisible())
                return control;
        }
        ADD_FAILURE() << "no control " << name;
        return nullptr;
    }
    static QString labels(QWidget* in) {
        QStringList all;
        for (const auto* label : in->findChildren<QLabel*>())
            all.append(label->text());
        return all.join(u'|');
    }
    static QString buttons(QWidget* in) {
        QStringList all;
        for (const auto* button : in->findChildren<TextButton*>())
            all.append(button->text());
        return all.join(u'|');
    }
    PalettesTopBar* topBar() { return window().findChild<PalettesTopBar*>(); }
    QString statusBar() { return window().findChild<PalettesStatusBar*>()->accessibleName(); }
};

// The top bar

TEST_F(Controls, TheSliderHasAStopForEachSwatchSize) {
    auto* slider = named<Slider>(topBar(), "Swatch size");
    ASSERT_TRUE(slider);
    EXPECT_EQ(slider->toolTip(), QStringLiteral("Swatch size"));
    EXPECT_EQ(slider->maximum() - slider->minimum(), 8);
    EXPECT_EQ(slider->value(), 3);
    for (int step = 0; step < 9; ++step) {
        slider->setValue(step);
        EXPECT_EQ(settings().swatchSize(), static_cast<SwatchSize>(step));
        EXPECT_EQ(list().areaOf(swatch(0, 0)).width(), 18 + 4 * step);
    }
    settings().setSwatchSize(SwatchSize::s2);
    EXPECT_EQ(slider->value(), 1);
}

TEST_F(Controls, TheStatusBarSaysWhatTheSliderIsForWhileThePointerIsOverIt) {
    auto* slider = named<Slider>(topBar(), "Swatch size");
    QEnterEvent enter({}, {}, {});
    QApplication::sendEvent(slider, &enter);
    EXPECT_EQ(statusBar(), QStringLiteral("Adjust the size of the color swatches."));
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(slider, &leave);
    EXPECT_TRUE(statusBar().isEmpty());
}

TEST_F(Controls, TheSwitchIsTheSettingThatClosesAfterACopy) {
    auto* button = named<IconButton>(topBar(), "Close dialog after copying");
    ASSERT_TRUE(button);
    EXPECT_FALSE(button->isChecked());
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_TRUE(settings().closePaletteDialogOnCopy());
    settings().setClosePaletteDialogOnCopy(false);
    EXPECT_FALSE(button->isChecked());
}

TEST_F(Controls, TheTopBarEndsWithTheSwitchAndTheMenuForNewPalettes) {
    auto* size = named<Slider>(topBar(), "Swatch size");
    auto* closes = named<IconButton>(topBar(), "Close dialog after copying");
    auto* add = topBar()->findChild<TextButton*>();
    EXPECT_EQ(add->text(), QStringLiteral("New Palette"));
    EXPECT_LT(size->geometry().right(), closes->geometry().left());
    EXPECT_LT(closes->geometry().right(), add->geometry().left());
    QTest::mouseClick(add, Qt::LeftButton);
    ASSERT_TRUE(shown<QMenu>());
    EXPECT_EQ(shown<QMenu>()->actions().first()->text(), QStringLiteral("Create from scratch"));
    shown<QMenu>()->close();
}

// Popovers

TEST_F(Controls, ARenameIsTitledAndEndsWithCancelOrDone) {
    click(label(0));
    auto* popover = shown<NamePopover>();
    ASSERT_TRUE(popover);
    EXPECT_EQ(labels(popover), QStringLiteral("Scale Name"));
    EXPECT_EQ(buttons(popover), QStringLiteral("Cancel|Done"));
    QTest::keyClicks(popover->findChild<QLineEdit*>(), QStringLiteral("Abyss"));
    press(popover, "Cancel");
    EXPECT_EQ(scaleNames(), QStringLiteral("Deep Shore"));
    click(label(0));
    QTest::keyClicks(shown<NamePopover>()->findChild<QLineEdit*>(), QStringLiteral("Abyss"));
    press(shown<NamePopover>(), "Done");
    EXPECT_EQ(scaleNames(), QStringLiteral("Abyss Shore"));
}

TEST_F(Controls, ANewColorAsksForItsValueAndItsName) {
    click(addButton(1));
    auto* popover = shown<SwatchPopover>();
    ASSERT_TRUE(popover);
    EXPECT_EQ(labels(popover), QStringLiteral("Value|Name"));
    EXPECT_EQ(buttons(popover), QStringLiteral("Cancel|Add"));
    EXPECT_EQ(named<QLineEdit>(popover, "Value")->text(), QStringLiteral("#000000"));
    auto* name = named<QLineEdit>(popover, "Name");
    EXPECT_EQ(name->placeholderText(), QStringLiteral("e.g. blue-500"));
    QTest::keyClicks(name, QStringLiteral(" coal "));
    press(popover, "Add");
    EXPECT_EQ(values(1), QStringLiteral("tan #000000"));
    EXPECT_EQ(sea().scales().at(1).swatches().at(1).label(), QStringLiteral("coal"));
}

TEST_F(Controls, AValueThatIsNoColorIsMarkedAndTheLastGoodColorIsAdded) {
    click(addButton(1));
    auto* popover = shown<SwatchPopover>();
    auto* value = named<QLineEdit>(popover, "Value");
    value->selectAll();
    QTest::keyClicks(value, QStringLiteral("red"));
    const auto isMarked = [popover] {
        for (const auto* widget : popover->findChildren<QWidget*>()) {
            if (widget->toolTip() == QStringLiteral("Couldn't parse this color"))
                return widget->isVisible();
        }
        return false;
    };
    EXPECT_FALSE(isMarked());
    QTest::keyClicks(value, QStringLiteral("dish"));
    EXPECT_TRUE(isMarked());
    press(popover, "Add");
    EXPECT_EQ(values(1), QStringLiteral("tan #ff0000"));
}

TEST_F(Controls, AnEditEndsWithDoneOrAClickElsewhereAndBothKeepIt) {
    for (const bool isDone : {true, false}) {
        openMenu(swatch(0, 1));
        choose("Edit Color");
        auto* popover = shown<SwatchPopover>();
        ASSERT_TRUE(popover);
        EXPECT_EQ(buttons(popover), QStringLiteral("Cancel|Done"));
        auto* value = named<QLineEdit>(popover, "Value");
        value->selectAll();
        QTest::keyClicks(value, isDone ? QStringLiteral("tan") : QStringLiteral("lime"));
        if (isDone)
            press(popover, "Done");
        else
            popover->close();
        EXPECT_EQ(values(0), isDone ? QStringLiteral("navy #d2b48c aqua")
                                    : QStringLiteral("navy #00ff00 aqua"));
    }
}

// The sheet of presets

TEST_F(Controls, TheSheetOfPresetsStartsInItsNameAndCancelAddsNothing) {
    m_controller.requests().requestPresetPicker();
    QApplication::processEvents();
    auto* sheet = window().findChild<PresetPickerSheet*>();
    ASSERT_TRUE(sheet);
    EXPECT_EQ(labels(sheet), QStringLiteral("Name|Preset"));
    EXPECT_EQ(buttons(sheet), QStringLiteral("Cancel|Add"));
    auto* name = sheet->findChild<QLineEdit*>();
    EXPECT_EQ(name->placeholderText(), QStringLiteral("New palette"));
    EXPECT_EQ(window().focusWidget(), name);
    press(sheet, "Cancel");
    EXPECT_EQ(names(), QStringLiteral("Sea Land"));
}

TEST_F(Controls, TheSheetAddsThePresetThatWasClicked) {
    m_controller.requests().requestPresetPicker();
    QApplication::processEvents();
    auto* sheet = window().findChild<PresetPickerSheet*>();
    QTest::mouseClick(sheet->findChild<PresetList*>()->rows().at(1), Qt::LeftButton);
    press(sheet, "Add");
    EXPECT_EQ(store().palettes().last().name(), m_presets.all().at(1).name());
}

// Deleting

TEST_F(Controls, ShiftDeletesScalesAndPalettesWithoutAQuestionToo) {
    openMenu(label(1));
    choose("Delete Scale", Qt::ShiftModifier);
    EXPECT_EQ(scaleNames(), QStringLiteral("Deep"));
    openMenu(header(landId()));
    choose("Delete Palette", Qt::ShiftModifier);
    EXPECT_EQ(names(), QStringLiteral("Sea"));
    EXPECT_FALSE(shown<AlertWindow>());
}

// Dragging

TEST_F(Controls, AScalesOrASwatchsDragCollapsesNothing) {
    drag(center(swatch(0, 0)), {center(swatch(0, 1)), center(swatch(0, 2)) + QPoint(10, 0)});
    EXPECT_EQ(values(0), QStringLiteral("blue aqua navy"));
    drag(QPoint(6, center(label(0)).y()), {QPoint(6, center(label(1)).y())});
    EXPECT_EQ(scaleNames(), QStringLiteral("Shore Deep"));
    EXPECT_TRUE(model().isExpanded(seaId()));
    EXPECT_TRUE(model().isExpanded(landId()));
}

} // namespace
} // namespace dropshade
