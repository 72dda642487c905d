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

#include <QAccessible>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>

#include <gmock/gmock.h>

namespace dropshade {
namespace {

using testing::IsEmpty;

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

TEST_F(Window, ANameThatIsBeingTypedIsTakenWhenTheProgramEnds) {
    click(label(0));
    auto* popover = shown<NamePopover>();
    ASSERT_TRUE(popover);
    QTest::keyClicks(popover->findChild<QLineEdit*>(), QStringLiteral("Abyss"));
    // As quitting does it, before the program saves what waits.
    QApplication::closeAllWindows();
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

TEST_F(Window, EscapeEndsThePresetPickerBeforeTheWindow) {
    m_controller.requests().requestPresetPicker();
    QApplication::processEvents();
    PalettesWindow& shownWindow = m_controller.ensureWindow();
    QTest::keyClick(&shownWindow, Qt::Key_Escape);
    EXPECT_TRUE(shownWindow.isVisible());
    QTest::keyClick(&shownWindow, Qt::Key_Escape);
    EXPECT_FALSE(shownWindow.isVisible());
}

TEST_F(Window, ClosingTheWindowTakesThePresetPickerAlong) {
    m_controller.requests().requestPresetPicker();
    QApplication::processEvents();
    m_controller.ensureWindow().close();
    EXPECT_FALSE(m_controller.ensureWindow().isVisible());
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(m_controller.ensureWindow().findChild<PresetPickerSheet*>());
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

// Screen readers

TEST_F(Window, AScreenReaderMeetsWhatIsInView) {
    store().updateSwatch(
        seaId(), scaleId(0),
        PaletteSwatch(swatchId(0, 1), QStringLiteral("#0000ff"), QStringLiteral("sky")));
    model().toggleFavorite({seaId(), scaleId(0), swatchId(0, 1)});
    QAccessibleInterface* tree = QAccessible::queryAccessibleInterface(&list());
    ASSERT_TRUE(tree);
    QStringList names;
    for (int index = 0; index < tree->childCount(); ++index)
        names.append(tree->child(index)->text(QAccessible::Name));
    EXPECT_EQ(names.join(QLatin1Char('|')),
              QStringLiteral("Sea|Palette options|Deep|navy|sky, #0000ff, favorite|aqua|Add color|"
                             "Shore|tan|Add color|Land|Palette options|Wood|green|Add color"));
    EXPECT_TRUE(tree->child(0)->state().expanded);
    EXPECT_EQ(tree->child(4)->rect().center(),
              list().mapToGlobal(list().areaOf(swatch(0, 1)).toAlignedRect().center()));
    EXPECT_EQ(tree->indexOfChild(tree->child(4)), 4);
}

TEST_F(Window, AScreenReaderPressesLikeAClick) {
    QAccessibleInterface* tree = QAccessible::queryAccessibleInterface(&list());
    QAccessibleInterface* child = tree->child(4);
    child->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(m_commands.copies.size(), 1);
    store().setPalettes({m_land});
    EXPECT_FALSE(child->isValid());
    EXPECT_TRUE(child->text(QAccessible::Name).isEmpty());
    child->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(m_commands.copies.size(), 1);
}

TEST_F(Window, AScreenReaderOpensTheMenuOfWhatHasOne) {
    QAccessibleInterface* tree = QAccessible::queryAccessibleInterface(&list());
    QAccessibleInterface* color = tree->child(4);
    EXPECT_EQ(color->actionInterface()->actionNames(),
              QStringList({QAccessibleActionInterface::pressAction(),
                           QAccessibleActionInterface::showMenuAction()}));
    color->actionInterface()->doAction(QAccessibleActionInterface::showMenuAction());
    ASSERT_TRUE(shown<QMenu>());
    EXPECT_EQ(shown<QMenu>()->actions().first()->text(), QStringLiteral("Edit Color"));
    EXPECT_TRUE(color->rect().contains(shown<QMenu>()->pos()));
    shown<QMenu>()->close();
    QAccessibleInterface* optionsButton = tree->child(1);
    optionsButton->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    ASSERT_TRUE(shown<QMenu>());
    EXPECT_TRUE(optionsButton->rect().contains(shown<QMenu>()->pos()));
    shown<QMenu>()->close();
}

TEST_F(Window, NothingOfAHiddenListIsThereForScreenReaders) {
    QAccessibleInterface* tree = QAccessible::queryAccessibleInterface(&list());
    EXPECT_FALSE(tree->child(0)->state().invisible);
    window().close();
    EXPECT_TRUE(tree->child(0)->state().invisible);
}

TEST_F(Window, ScreenReadersMeetWindowsSheetsAndPopoversAsWhatTheyAre) {
    const auto roleOf = [](QWidget* widget) {
        return QAccessible::queryAccessibleInterface(widget)->role();
    };
    EXPECT_EQ(roleOf(&window()), QAccessible::Window);
    click(label(0));
    EXPECT_EQ(roleOf(shown<NamePopover>()), QAccessible::Dialog);
    shown<NamePopover>()->close();
    m_controller.requests().requestPresetPicker();
    auto* sheet = window().findChild<PresetPickerSheet*>();
    EXPECT_EQ(roleOf(sheet), QAccessible::Dialog);
    EXPECT_FALSE(sheet->accessibleName().isEmpty());
    sheet->closeSheet();
    openMenu(swatch(0, 1));
    choose("Delete Color");
    EXPECT_EQ(roleOf(shown<AlertWindow>()), QAccessible::AlertMessage);
    press(shown<AlertWindow>(), "Cancel");
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

TEST_F(Window, OpensAtTheTopWhateverTheLengthOfTheList) {
    window().close();
    QList<Palette> palettes;
    for (int index = 0; index < 100; ++index)
        palettes.append(makePalette("Palette", {makeScale("Scale", {"red"})}));
    store().setPalettes(palettes);
    window();
    EXPECT_EQ(list().view().top(), 0);
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
