// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "PalettesWindowFixture.h"
#include "palettes/ListKeys.h"
#include "palettes/NamePopover.h"
#include "palettes/PalettesStatusBar.h"
#include "palettes/PresetPickerSheet.h"
#include "palettes/ScaleRowWidget.h"
#include "palettes/SwatchPopover.h"
#include "support/QtPrinters.h"
#include "widgets/AlertWindow.h"

#include <QLineEdit>
#include <QMenu>
#include <QPushButton>

#include <gmock/gmock.h>

namespace dropshade {
namespace {

using testing::IsEmpty;

class Window : public PalettesWindowOnScreen {
protected:
    Window() { window(); }

    template <typename Kind>
    static Kind* shown() {
        QApplication::processEvents();
        for (QWidget* widget : QApplication::topLevelWidgets()) {
            if (auto* found = qobject_cast<Kind*>(widget); found && found->isVisible())
                return found;
        }
        return nullptr;
    }
    static void choose(const char* title, Qt::KeyboardModifiers modifiers = {}) {
        auto* menu = shown<QMenu>();
        ASSERT_TRUE(menu);
        for (QAction* action : menu->actions()) {
            if (action->text() != QString::fromUtf8(title))
                continue;
            QTest::mouseClick(menu, Qt::LeftButton, modifiers,
                              menu->actionGeometry(action).center());
            return;
        }
        ADD_FAILURE() << "no row " << title;
    }
    void openMenu(const ListElement& element) {
        const QPoint at = center(element);
        QContextMenuEvent event(QContextMenuEvent::Mouse, at, list().mapToGlobal(at));
        QApplication::sendEvent(&list(), &event);
    }
    static void press(QWidget* in, const char* title) {
        for (auto* button : in->findChildren<QPushButton*>()) {
            if (button->text() == QString::fromUtf8(title)) {
                QTest::mouseClick(button, Qt::LeftButton);
                return;
            }
        }
        ADD_FAILURE() << "no button " << title;
    }
    qint64 paintedSwatches() {
        qint64 sum = 0;
        for (const auto* row : list().findChildren<ScaleRowWidget*>())
            sum += row->paintedSwatches();
        return sum;
    }
};

// Clicks

TEST_F(Window, AClickOnASwatchCopiesIt) {
    click(swatch(0, 1));
    ASSERT_EQ(m_commands.copies.size(), 1);
    EXPECT_EQ(m_commands.copies.first().first, SRGBColor(0.0, 0.0, 1.0));
}

TEST_F(Window, AClickOnAHeaderOpensAndClosesThePalette) {
    click(header(landId()));
    EXPECT_FALSE(model().isExpanded(landId()));
    click(header(landId()));
    EXPECT_TRUE(model().isExpanded(landId()));
}

TEST_F(Window, APressThatIsReleasedElsewhereIsNoClick) {
    QTest::mousePress(&list(), Qt::LeftButton, {}, center(addButton(0)));
    QTest::mouseRelease(&list(), Qt::LeftButton, {}, center(swatch(0, 1)));
    EXPECT_THAT(m_commands.copies, IsEmpty());
    EXPECT_FALSE(shown<SwatchPopover>());
}

TEST_F(Window, TheSecondaryClickOffersTheMenuOfWhatIsThere) {
    openMenu(swatch(0, 1));
    ASSERT_TRUE(shown<QMenu>());
    EXPECT_EQ(shown<QMenu>()->actions().first()->text(), QStringLiteral("Edit Color"));
    shown<QMenu>()->close();
    openMenu(label(0));
    EXPECT_EQ(shown<QMenu>()->actions().first()->text(), QStringLiteral("Rename Scale"));
    shown<QMenu>()->close();
    openMenu(header(landId()));
    EXPECT_EQ(shown<QMenu>()->actions().first()->text(), QStringLiteral("Rename Palette"));
    shown<QMenu>()->close();
}

TEST_F(Window, TheControlKeyMakesAClickASecondaryOne) {
    click(swatch(0, 1), Qt::ControlModifier);
    EXPECT_TRUE(shown<QMenu>());
    EXPECT_THAT(m_commands.copies, IsEmpty());
    shown<QMenu>()->close();
}

TEST_F(Window, TheOptionsButtonOpensThePalettesMenu) {
    click(options(landId()));
    ASSERT_TRUE(shown<QMenu>());
    EXPECT_EQ(shown<QMenu>()->actions().first()->text(), QStringLiteral("Rename Palette"));
    shown<QMenu>()->close();
    EXPECT_TRUE(model().isExpanded(landId()));
}

// Deleting

TEST_F(Window, DeletingAsksAndTheFirstAnswerDeletes) {
    openMenu(swatch(0, 1));
    choose("Delete Color");
    auto* alert = shown<AlertWindow>();
    ASSERT_TRUE(alert);
    press(alert, "Delete");
    EXPECT_EQ(values(0), QStringLiteral("navy aqua"));
}

TEST_F(Window, DeletingAsksAndCancelKeepsTheColor) {
    openMenu(swatch(0, 1));
    choose("Delete Color");
    press(shown<AlertWindow>(), "Cancel");
    EXPECT_EQ(values(0), QStringLiteral("navy blue aqua"));
}

TEST_F(Window, ShiftDeletesWithoutAQuestion) {
    openMenu(swatch(0, 1));
    choose("Delete Color", Qt::ShiftModifier);
    EXPECT_FALSE(shown<AlertWindow>());
    EXPECT_EQ(values(0), QStringLiteral("navy aqua"));
}

// Renaming

TEST_F(Window, AClickOnALabelRenamesTheScale) {
    click(label(0));
    auto* popover = shown<NamePopover>();
    ASSERT_TRUE(popover);
    auto* field = popover->findChild<QLineEdit*>();
    QApplication::processEvents();
    EXPECT_EQ(field->selectedText(), QStringLiteral("Deep"));
    QTest::keyClicks(field, QStringLiteral("Abyss"));
    QTest::keyClick(field, Qt::Key_Return);
    EXPECT_EQ(scaleNames(), QStringLiteral("Abyss Shore"));
}

TEST_F(Window, APopoverThatGoesAwayTakesTheName) {
    click(label(0));
    auto* popover = shown<NamePopover>();
    QTest::keyClicks(popover->findChild<QLineEdit*>(), QStringLiteral("Abyss"));
    popover->close();
    EXPECT_EQ(scaleNames(), QStringLiteral("Abyss Shore"));
}

TEST_F(Window, EscapeTakesNoName) {
    click(label(0));
    auto* field = shown<NamePopover>()->findChild<QLineEdit*>();
    QTest::keyClicks(field, QStringLiteral("Abyss"));
    QTest::keyClick(field, Qt::Key_Escape);
    EXPECT_FALSE(shown<NamePopover>());
    EXPECT_EQ(scaleNames(), QStringLiteral("Deep Shore"));
}

TEST_F(Window, ANewPaletteAsksForItsName) {
    model().createFromScratch();
    scheduler().advance(0);
    auto* popover = shown<NamePopover>();
    ASSERT_TRUE(popover);
    QTest::keyClicks(popover->findChild<QLineEdit*>(), QStringLiteral("Brand"));
    popover->close();
    EXPECT_EQ(names(), QStringLiteral("Sea Land Brand"));
}

// Editing colors

TEST_F(Window, TheEditorWorksOnTheSwatchAsTheUserTypes) {
    openMenu(swatch(0, 1));
    choose("Edit Color");
    auto* popover = shown<SwatchPopover>();
    ASSERT_TRUE(popover);
    auto* value = popover->findChildren<QLineEdit*>().first();
    value->selectAll();
    QTest::keyClicks(value, QStringLiteral("tan"));
    EXPECT_EQ(values(0), QStringLiteral("navy #d2b48c aqua"));
    press(popover, "Cancel");
    EXPECT_EQ(values(0), QStringLiteral("navy blue aqua"));
}

TEST_F(Window, EscapeTakesAnEditBack) {
    openMenu(swatch(0, 1));
    choose("Edit Color");
    auto* value = shown<SwatchPopover>()->findChildren<QLineEdit*>().first();
    value->selectAll();
    QTest::keyClicks(value, QStringLiteral("tan"));
    QTest::keyClick(value, Qt::Key_Escape);
    EXPECT_EQ(values(0), QStringLiteral("navy blue aqua"));
}

TEST_F(Window, TheAddButtonAddsAColor) {
    click(addButton(1));
    auto* popover = shown<SwatchPopover>();
    ASSERT_TRUE(popover);
    auto* value = popover->findChildren<QLineEdit*>().first();
    value->selectAll();
    QTest::keyClicks(value, QStringLiteral("rgba(255, 0, 0, 0.5)"));
    QTest::keyClick(value, Qt::Key_Return);
    EXPECT_EQ(values(1), QStringLiteral("tan #ff0000"));
    EXPECT_FALSE(shown<SwatchPopover>());
}

// Presets

TEST_F(Window, ThePresetPickerOpensOnRequestAndAdds) {
    m_controller.requests().requestPresetPicker();
    QApplication::processEvents();
    auto* sheet = window().findChild<PresetPickerSheet*>();
    ASSERT_TRUE(sheet);
    auto* name = sheet->findChild<QLineEdit*>();
    QTest::keyClicks(name, QStringLiteral("Mine"));
    QTest::keyClick(name, Qt::Key_Return);
    EXPECT_EQ(names(), QStringLiteral("Sea Land Mine"));
}

TEST_F(Window, ClosingTheWindowEndsThePresetPickerFirst) {
    m_controller.requests().requestPresetPicker();
    window().close();
    EXPECT_TRUE(window().isVisible());
    window().close();
    EXPECT_FALSE(m_controller.ensureWindow().isVisible());
}

// Dragging

TEST_F(Window, ADragReordersSwatchesInOneWrite) {
    drag(center(swatch(0, 0)), {center(swatch(0, 1)), center(swatch(0, 2)) + QPoint(10, 0)});
    EXPECT_EQ(values(0), QStringLiteral("blue aqua navy"));
    EXPECT_EQ(m_changes, 1);
    EXPECT_THAT(m_commands.copies, IsEmpty()) << "the release is no click";
}

TEST_F(Window, ADragTakesASwatchToAnotherScale) {
    drag(center(swatch(0, 1)), {center(swatch(1, 0)) - QPoint(2, 0)});
    EXPECT_EQ(values(0), QStringLiteral("navy aqua"));
    EXPECT_EQ(values(1), QStringLiteral("blue tan"));
}

TEST_F(Window, TheGripReordersScales) {
    const QPoint grip(6, center(label(0)).y());
    drag(grip, {QPoint(6, center(label(1)).y())});
    EXPECT_EQ(scaleNames(), QStringLiteral("Shore Deep"));
    EXPECT_FALSE(shown<NamePopover>()) << "the release is no click on the label";
}

TEST_F(Window, AHeaderReordersPalettesAndAllCollapse) {
    drag(center(header(landId())), {center(header(seaId()))});
    EXPECT_EQ(names(), QStringLiteral("Land Sea"));
    EXPECT_FALSE(model().isExpanded(seaId()));
    EXPECT_FALSE(model().isExpanded(landId()));
}

TEST_F(Window, APaletteDeletedByAnotherMachineEndsTheDragInIt) {
    QTest::mousePress(&list(), Qt::LeftButton, {}, center(swatch(0, 0)));
    dragTo(center(swatch(0, 2)));
    ASSERT_TRUE(model().drag().isDragging());
    store().setPalettes({m_land});
    EXPECT_FALSE(model().drag().isDragging());
    dragTo(QPoint(200, 60));
    QTest::mouseRelease(&list(), Qt::LeftButton, {}, QPoint(200, 60));
    EXPECT_EQ(names(), QStringLiteral("Land"));
    EXPECT_THAT(m_commands.copies, IsEmpty());
}

TEST_F(Window, HidingTheWindowEndsADragLikeARelease) {
    QTest::mousePress(&list(), Qt::LeftButton, {}, center(swatch(0, 0)));
    dragTo(center(swatch(0, 2)) + QPoint(10, 0));
    window().hide();
    EXPECT_FALSE(model().drag().isDragging());
    EXPECT_EQ(values(0), QStringLiteral("blue aqua navy"));
}

// Hovering

TEST_F(Window, TheStatusBarTellsTheSwatchUnderThePointer) {
    hover(center(swatch(0, 1)));
    auto* bar = window().findChild<PalettesStatusBar*>();
    EXPECT_EQ(bar->accessibleName(), QStringLiteral("blue"));
    hover(center(header(landId())));
    scheduler().advance(150);
    EXPECT_EQ(bar->accessibleName(), QStringLiteral("Control-click for options"));
    hover(QPoint(300, list().height() - 2));
    EXPECT_TRUE(bar->accessibleName().isEmpty());
}

TEST_F(Window, HoveringRepaintsTwoSwatchesAtMost) {
    hover(center(swatch(0, 0)));
    QApplication::processEvents();
    for (const int index : {1, 2, 1, 0}) {
        const qint64 before = paintedSwatches();
        hover(center(swatch(0, index)));
        QApplication::processEvents();
        const qint64 painted = paintedSwatches() - before;
        EXPECT_GE(painted, 1);
        EXPECT_LE(painted, 2);
    }
}

TEST_F(Window, AMoveWithinASwatchRepaintsNothing) {
    hover(center(swatch(0, 0)));
    QApplication::processEvents();
    const qint64 before = paintedSwatches();
    hover(center(swatch(0, 0)) + QPoint(2, 2));
    QApplication::processEvents();
    EXPECT_EQ(paintedSwatches(), before);
}

// Keys

TEST_F(Window, ArrowsGoThroughRowsAndReturnCopies) {
    key(Qt::Key_Down);
    EXPECT_EQ(window().keys().current(), header(seaId()));
    key(Qt::Key_Down);
    key(Qt::Key_Right);
    key(Qt::Key_Right);
    EXPECT_EQ(window().keys().current(), swatch(0, 1));
    key(Qt::Key_Return);
    EXPECT_EQ(m_commands.copies.size(), 1);
}

TEST_F(Window, AltWithAnArrowMovesASwatchAndTheKeyboardGoesAlong) {
    window().keys().setCurrent(swatch(0, 0));
    key(Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(values(0), QStringLiteral("blue navy aqua"));
    key(Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(values(1), QStringLiteral("tan navy"));
    EXPECT_EQ(window().keys().current().scaleId, scaleId(1));
    auto* bar = window().findChild<PalettesStatusBar*>();
    EXPECT_FALSE(bar->accessibleName().isEmpty());
}

TEST_F(Window, AltWithAnArrowMovesScalesAndPalettes) {
    window().keys().setCurrent(label(0));
    key(Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(scaleNames(), QStringLiteral("Shore Deep"));
    window().keys().setCurrent(header(seaId()));
    key(Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(names(), QStringLiteral("Land Sea"));
}

TEST_F(Window, TabGoesFromRowToRowAndOutAtTheEnd) {
    key(Qt::Key_Tab);
    EXPECT_EQ(window().keys().current(), header(seaId()));
    key(Qt::Key_Tab);
    EXPECT_EQ(window().keys().current(), label(0));
    for (int rows = 0; rows < 3; ++rows)
        key(Qt::Key_Tab);
    EXPECT_TRUE(list().hasFocus());
    key(Qt::Key_Tab);
    EXPECT_FALSE(list().hasFocus());
}

TEST_F(Window, DeleteAsksAndShiftDeleteDoesNot) {
    window().keys().setCurrent(swatch(0, 1));
    key(Qt::Key_Delete);
    ASSERT_TRUE(shown<AlertWindow>());
    press(shown<AlertWindow>(), "Cancel");
    key(Qt::Key_Delete, Qt::ShiftModifier);
    EXPECT_EQ(values(0), QStringLiteral("navy aqua"));
}

TEST_F(Window, EscapeClosesItAndWritesWhatWaits) {
    store().renamePalette(seaId(), QStringLiteral("Ocean"));
    model().toggleFavorite({seaId(), scaleId(0), swatchId(0, 0)});
    window().close();
    EXPECT_EQ(m_saves, 1);
    EXPECT_FALSE(store().hasPendingSave());
    EXPECT_FALSE(settings().hasPendingPins());
}

TEST_F(Window, KeepsWhatIsOpenOverACloseAndAReopening) {
    click(header(landId()));
    const PalettesWindow* before = &window();
    window().close();
    EXPECT_EQ(&window(), before);
    EXPECT_FALSE(model().isExpanded(landId()));
}

// Arrangement

TEST_F(Window, IsNeverSmallerThanItsLeastSize) {
    EXPECT_EQ(window().size(), QSize(560, 620));
    EXPECT_EQ(window().minimumSize(), QSize(160, 280));
}

TEST_F(Window, ShowsTheEmptyStateWithoutPalettes) {
    store().setPalettes({});
    QApplication::processEvents();
    press(&window(), "Create palette from scratch");
    EXPECT_EQ(names(), QStringLiteral("New Palette"));
}

TEST_F(Window, HasWidgetsForTheRowsInViewOnly) {
    QList<Palette> palettes;
    for (int index = 0; index < 100; ++index) {
        QList<PaletteScale> scales;
        for (int scale = 0; scale < 26; ++scale)
            scales.append(makeScale("Scale", {"red", "green", "blue"}));
        palettes.append(makePalette("Palette", scales));
    }
    store().setPalettes(palettes);
    QApplication::processEvents();
    EXPECT_LT(list().findChildren<ListRowWidget*>().size(), 25);
    list().scrollBy(40000);
    QApplication::processEvents();
    EXPECT_GT(list().view().top(), 39000);
    EXPECT_LT(list().findChildren<ListRowWidget*>().size(), 25);
}

TEST_F(Window, StandsAtEveryWidth) {
    for (const int width : {160, 161, 240, 300, 301, 400, 800, 1200}) {
        window().resize(width, 400);
        QApplication::processEvents();
        EXPECT_EQ(model().isCompact(), width <= 300) << width;
        for (const auto& element : {swatch(0, 2), addButton(0), label(0), options(landId())}) {
            const QRectF area = list().areaOf(element);
            EXPECT_FALSE(area.isEmpty()) << width;
            EXPECT_LE(area.right(), width) << width;
        }
    }
}

} // namespace
} // namespace dropshade
