// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "PalettesWindowFixture.h"
#include "palettes/ListKeys.h"
#include "palettes/NamePopover.h"
#include "palettes/PalettesStatusBar.h"
#include "support/QtPrinters.h"
#include "widgets/AlertWindow.h"

#include <gmock/gmock.h>

namespace dropshade {
namespace {

using testing::IsEmpty;

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

TEST_F(Window, AScaleOutOfViewDeletedByAnotherMachineEndsTheDragOfItsSwatch) {
    QList<PaletteScale> scales;
    for (int index = 0; index < 40; ++index)
        scales.append(makeScale("Scale", {"red", "green"}));
    const Palette tall = makePalette("Tall", scales);
    store().setPalettes({tall});
    const ListElement last{ListElement::Part::Swatch, tall.id(), scales.last().id(),
                           scales.last().swatches().first().id()};
    list().reveal(last);
    QTest::mousePress(&list(), Qt::LeftButton, {}, center(last));
    dragTo(center(last) - QPoint(0, 60));
    ASSERT_TRUE(model().drag().isDragging());
    list().scrollBy(-10000);
    store().deleteScale(tall.id(), scales.last().id());
    QTest::mouseRelease(&list(), Qt::LeftButton, {}, list().view().center());
    QApplication::processEvents();
    EXPECT_EQ(store().palettes().first().scales().size(), 39);
    EXPECT_FALSE(model().drag().isDragging());
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

} // namespace
} // namespace dropshade
