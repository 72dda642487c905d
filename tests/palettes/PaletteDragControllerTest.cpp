// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "DragFixture.h"
#include "support/QtPrinters.h"

namespace dropshade {
namespace {

// Palettes

TEST_F(Drag, APaletteSwapsAsSoonAsThePointerEntersAnotherHeader) {
    dragPalette(m_a, header(0), QPointF(250.0, 39.5));
    EXPECT_EQ(namesOf(*m_drag.localPalettes()), QStringLiteral("ABC"));
    dragPalette(m_a, header(0), QPointF(250.0, 40.0));
    EXPECT_EQ(namesOf(*m_drag.localPalettes()), QStringLiteral("BAC"));
}

TEST_F(Drag, PassingTheMiddleOfThreePalettesIsOneMove) {
    const SignalCount arrangements(m_drag, &PaletteDragController::arrangementDidChange);
    for (double y = 25.0; y < 80.0; y += 5.0) {
        dragPalette(m_a, header(0), QPointF(250.0, y));
        placeHeaders(*m_drag.localPalettes());
    }
    EXPECT_EQ(namesOf(*m_drag.localPalettes()), QStringLiteral("BAC"));
    EXPECT_EQ(arrangements.count(), 1);
}

TEST_F(Drag, AJumpOverSeveralPalettesTakesThePlaceOfTheOneUnderThePointer) {
    dragPalette(m_a, header(0), header(2));
    EXPECT_EQ(namesOf(*m_drag.localPalettes()), QStringLiteral("BCA"));
}

TEST_F(Drag, AReleaseInTheGapBetweenRowsLeavesTheLastArrangement) {
    dragPalette(m_a, header(0), header(1));
    dragPalette(m_a, header(0), QPointF(250.0, 500.0));
    m_drag.paletteDragEnded();
    EXPECT_EQ(namesOf(store().palettes()), QStringLiteral("BAC"));
}

TEST_F(Drag, APalettesDragWritesOnceAndStampsNothing) {
    dragPalette(m_a, header(0), header(1));
    dragPalette(m_a, header(0), header(2));
    EXPECT_EQ(m_writes, 0) << "only the working copy changes";
    m_drag.paletteDragEnded();
    EXPECT_EQ(m_writes, 1);
    EXPECT_TRUE(store().hasPendingSave());
    EXPECT_EQ(stored(0).lastModified(), m_b.lastModified());
    EXPECT_FALSE(m_drag.localPalettes());
    EXPECT_FALSE(m_drag.isDragging());
}

TEST_F(Drag, TheEndOfAPalettesDragAsksForAllToBeCollapsed) {
    const SignalCount collapses(m_drag, &PaletteDragController::paletteDragDidEnd);
    dragPalette(m_a, header(0), header(1));
    m_drag.paletteDragEnded();
    EXPECT_EQ(collapses.count(), 1);
    dragScale(0, QPointF(50, 219), QPointF(50, 259));
    m_drag.scaleDragEnded(m_a.id());
    dragSwatch(0, 0, slot(0, 2));
    m_drag.swatchDragEnded(m_a.id());
    EXPECT_EQ(collapses.count(), 1) << "the other drags collapse nothing";
}

TEST_F(Drag, APaletteHangsByItsMiddleAndMovesUpAndDownOnly) {
    dragPalette(m_a, QPointF(300.0, 5.0), QPointF(460.0, 90.0));
    EXPECT_EQ(m_drag.grabOffset(), QPointF(50.0, 0.0));
    const auto floating = m_drag.floating(QRectF(0, 0, 500, 600));
    ASSERT_TRUE(floating);
    EXPECT_EQ(floating->center, QPointF(250.0, 90.0));
    EXPECT_EQ(floating->size, QSizeF(500.0, 40.0));
}

TEST_F(Drag, APaletteDeletedDuringItsDragStaysDeletedAndTheRestKeepsTheNewOrder) {
    dragPalette(m_a, header(0), header(2));
    store().setPalettes({m_b, m_c});
    m_drag.paletteDragEnded();
    EXPECT_EQ(namesOf(store().palettes()), QStringLiteral("BC"));
}

TEST_F(Drag, APaletteThatArrivesDuringADragMakesTheStoreRefuseTheOrder) {
    dragPalette(m_a, header(0), header(2));
    store().setPalettes({m_a, m_b, m_c, makePalette("D")});
    m_drag.paletteDragEnded();
    EXPECT_EQ(namesOf(store().palettes()), QStringLiteral("ABCD"));
}

TEST_F(Drag, TheEndOfNoDragDoesNothing) {
    m_drag.paletteDragEnded();
    m_drag.scaleDragEnded(m_a.id());
    m_drag.swatchDragEnded(m_a.id());
    m_drag.end();
    EXPECT_EQ(m_writes, 0);
}

// Scales

TEST_F(Drag, AScaleSwapsWithTheRowUnderThePointer) {
    dragScale(0, QPointF(50, 219), QPointF(50, 259));
    EXPECT_EQ(namesOf(m_drag.activeLocalScales()), QStringLiteral("21"));
    EXPECT_EQ(m_drag.activeScalesPaletteId(), m_a.id());
    EXPECT_EQ(m_writes, 0);
    m_drag.scaleDragEnded(m_a.id());
    EXPECT_EQ(namesOf(stored(0).scales()), QStringLiteral("21"));
    EXPECT_EQ(m_writes, 1);
    EXPECT_FALSE(m_drag.activeScalesPaletteId());
}

TEST_F(Drag, AScaleCannotLeaveItsPalette) {
    PaletteDragController::Frames rows = m_drag.scaleFrames();
    rows.insert(m_b.scales().first().id(), QRectF(0, 400, 500, 38));
    m_drag.setScaleFrames(rows);
    dragScale(0, QPointF(50, 219), QPointF(50, 410));
    EXPECT_EQ(namesOf(m_drag.activeLocalScales()), QStringLiteral("12"));
}

TEST_F(Drag, AScalesDragThatEndsWhereItBeganWritesNothing) {
    dragScale(0, QPointF(50, 219), QPointF(50, 259));
    placeRows(m_drag.activeLocalScales());
    dragScale(0, QPointF(50, 219), QPointF(50, 219));
    m_drag.scaleDragEnded(m_a.id());
    EXPECT_EQ(m_writes, 0);
    EXPECT_EQ(stored(0).lastModified(), m_a.lastModified());
}

TEST_F(Drag, AScaleHangsWhereItWasGrabbedAndMovesUpAndDownOnly) {
    dragScale(1, QPointF(40, 250), QPointF(90, 230));
    EXPECT_EQ(m_drag.grabOffset(), QPointF(-210.0, -9.0));
    EXPECT_EQ(m_drag.floating(QRectF(0, 0, 500, 600))->center, QPointF(250.0, 239.0));
}

// Swatches

TEST_F(Drag, ASwatchTakenToTheLeftOfAFartherOneLandsBeforeIt) {
    // Left of the centre of index 4: insertion index 4, less its own place: 3.
    const QPointF point = slot(0, 4) - QPointF(1.0, 0.0);
    dragSwatch(0, 1, point);
    EXPECT_EQ(m_drag.insertionIndex(point, m_a.scales().first(), swatchId(0, 1)), 4);
    EXPECT_EQ(valuesOf(m_drag.activeLocalScales().first()), QStringLiteral("acdbe"));
    m_drag.swatchDragEnded(m_a.id());
    EXPECT_EQ(valuesOf(stored(0).scales().first()), QStringLiteral("acdbe"));
    EXPECT_EQ(m_writes, 1);
}

TEST_F(Drag, ASwatchTakenPastTheLastOfItsScaleLandsAtTheEnd) {
    dragSwatch(0, 0, slot(0, 8));
    EXPECT_EQ(valuesOf(m_drag.activeLocalScales().first()), QStringLiteral("bcdea"));
}

TEST_F(Drag, ASwatchTakenToTheFrontLandsThere) {
    dragSwatch(0, 4, slot(0, -1));
    EXPECT_EQ(valuesOf(m_drag.activeLocalScales().first()), QStringLiteral("eabcd"));
}

TEST_F(Drag, OverAnotherScaleASwatchIsOnlyIntended) {
    dragSwatch(0, 1, slot(1, 1) - QPointF(1.0, 0.0));
    EXPECT_EQ(m_drag.intendedDropScaleId(), scaleId(1));
    EXPECT_EQ(m_drag.dropHighlightScaleId(), scaleId(1));
    EXPECT_EQ(m_drag.intendedDropIndex(), 1);
    EXPECT_EQ(valuesOf(m_drag.activeLocalScales().at(0)), QStringLiteral("abcde"));
    m_drag.swatchDragEnded(m_a.id());
    EXPECT_EQ(valuesOf(stored(0).scales().at(0)), QStringLiteral("acde"));
    EXPECT_EQ(valuesOf(stored(0).scales().at(1)), QStringLiteral("xby"));
}

TEST_F(Drag, OnTheRightOfTheLastSwatchOfAnotherScaleItIsAppended) {
    dragSwatch(0, 1, slot(1, 6));
    EXPECT_EQ(m_drag.intendedDropIndex(), 2);
    m_drag.swatchDragEnded(m_a.id());
    EXPECT_EQ(valuesOf(stored(0).scales().at(1)), QStringLiteral("xyb"));
}

TEST_F(Drag, InNoLineOfTheTargetMeansItsEnd) {
    EXPECT_EQ(m_drag.insertionIndex(QPointF(100.0, 277.5), m_a.scales().at(1), std::nullopt), 2);
}

TEST_F(Drag, TheEdgesOfALineBelongToIt) {
    const PaletteScale& scale = m_a.scales().at(1);
    EXPECT_EQ(m_drag.insertionIndex(QPointF(100.0, 244.0), scale, std::nullopt), 0);
    EXPECT_EQ(m_drag.insertionIndex(QPointF(100.0, 274.0), scale, std::nullopt), 0);
    EXPECT_EQ(m_drag.insertionIndex(QPointF(100.0, 243.9), scale, std::nullopt), 2);
}

TEST_F(Drag, TheCenterLineItselfIsOnTheRight) {
    EXPECT_EQ(m_drag.insertionIndex(slot(1, 0), m_a.scales().at(1), std::nullopt), 1);
}

TEST_F(Drag, ASwatchWhosePlaceIsNotKnownIsPassedOver) {
    PaletteDragController::Frames frames = m_drag.swatchFrames();
    frames.remove(swatchId(1, 0));
    m_drag.setSwatchFrames(frames);
    EXPECT_EQ(m_drag.insertionIndex(QPointF(50.0, 259.0), m_a.scales().at(1), std::nullopt), 1);
}

TEST_F(Drag, ASwatchTakenOutOfItsScaleAndBackCommitsNoMove) {
    dragSwatch(0, 1, slot(1, 0));
    dragSwatch(0, 1, slot(0, 1));
    EXPECT_FALSE(m_drag.intendedDropScaleId());
    EXPECT_FALSE(m_drag.dropHighlightScaleId());
    m_drag.swatchDragEnded(m_a.id());
    EXPECT_EQ(m_writes, 0);
    EXPECT_EQ(stored(0).lastModified(), m_a.lastModified());
}

TEST_F(Drag, OutsideAllScalesNothingIsIntended) {
    dragSwatch(0, 1, slot(1, 0));
    dragSwatch(0, 1, QPointF(100.0, 500.0));
    EXPECT_FALSE(m_drag.intendedDropScaleId());
    EXPECT_FALSE(m_drag.dropHighlightScaleId());
}

TEST_F(Drag, AMoveToAnotherScaleDropsTheReorderingOnTheWay) {
    dragSwatch(0, 0, slot(0, 3));
    placeRows(m_drag.activeLocalScales());
    ASSERT_EQ(valuesOf(m_drag.activeLocalScales().first()), QStringLiteral("bcdae"));
    dragSwatch(0, 0, slot(1, 5));
    m_drag.swatchDragEnded(m_a.id());
    EXPECT_EQ(valuesOf(stored(0).scales().at(0)), QStringLiteral("bcde"));
    EXPECT_EQ(valuesOf(stored(0).scales().at(1)), QStringLiteral("xya"));
}

TEST_F(Drag, ASwatchFloatsUnderThePointerWhereItWasGrabbed) {
    m_drag.swatchDragChanged(m_a.id(), scaleId(0), swatchId(0, 0),
                             DragValue{QPointF(110, 210), QPointF(300, 400)});
    EXPECT_EQ(m_drag.grabOffset(), QPointF(-5.0, -9.0));
    EXPECT_EQ(m_drag.floating(QRectF(0, 0, 500, 600))->center, QPointF(305.0, 409.0));
}

TEST_F(Drag, TheGrabIsTakenAtTheFirstEventWithAKnownPlace) {
    const auto frames = m_drag.swatchFrames();
    m_drag.setSwatchFrames({});
    dragSwatch(0, 1, slot(1, 0));
    EXPECT_FALSE(m_drag.intendedDropScaleId()) << "until then it goes nowhere";
    EXPECT_EQ(m_drag.cursor(), slot(1, 0));
    EXPECT_FALSE(m_drag.floating(QRectF(0, 0, 500, 600)));
    m_drag.setSwatchFrames(frames);
    dragSwatch(0, 1, slot(1, 0));
    EXPECT_TRUE(m_drag.intendedDropScaleId());
}

TEST_F(Drag, AScaleDeletedUnderTheDragTakesTheSwatchAlong) {
    dragSwatch(0, 1, slot(0, 4));
    store().deleteScale(m_a.id(), scaleId(0));
    m_writes = 0;
    m_drag.swatchDragEnded(m_a.id());
    EXPECT_EQ(m_writes, 0);
    EXPECT_EQ(namesOf(stored(0).scales()), QStringLiteral("2"));
    EXPECT_FALSE(m_drag.isDragging());
}

TEST_F(Drag, ATargetScaleDeletedUnderTheDragLeavesTheSwatchWhereItIs) {
    dragSwatch(0, 1, slot(1, 0));
    store().deleteScale(m_a.id(), scaleId(1));
    m_writes = 0;
    m_drag.swatchDragEnded(m_a.id());
    EXPECT_EQ(m_writes, 0);
    EXPECT_EQ(valuesOf(stored(0).scales().first()), QStringLiteral("abcde"));
}

TEST_F(Drag, APaletteDeletedUnderASwatchsDragStaysDeleted) {
    dragSwatch(0, 1, slot(1, 0));
    store().setPalettes({m_b, m_c});
    m_writes = 0;
    m_drag.end();
    EXPECT_EQ(m_writes, 0);
    EXPECT_EQ(namesOf(store().palettes()), QStringLiteral("BC"));
    EXPECT_FALSE(m_drag.activeScalesPaletteId());
    EXPECT_TRUE(m_drag.activeLocalScales().isEmpty());
}

TEST_F(Drag, ADragOfWhatIsGoneDoesNotBegin) {
    m_drag.swatchDragChanged(QUuid::createUuid(), scaleId(0), swatchId(0, 0), DragValue{});
    m_drag.scaleDragChanged(QUuid::createUuid(), scaleId(0), DragValue{});
    EXPECT_FALSE(m_drag.isDragging());
}

TEST_F(Drag, EndFinishesWhateverIsDragged) {
    dragScale(0, QPointF(50, 219), QPointF(50, 259));
    m_drag.end();
    EXPECT_EQ(namesOf(stored(0).scales()), QStringLiteral("21"));
    dragPalette(m_a, header(0), header(1));
    m_drag.end();
    EXPECT_EQ(namesOf(store().palettes()), QStringLiteral("BAC"));
}

TEST_F(Drag, APointerThatStandsStillNotifiesNobody) {
    dragSwatch(0, 1, slot(1, 0));
    const SignalCount arrangements(m_drag, &PaletteDragController::arrangementDidChange);
    const SignalCount cursors(m_drag, &PaletteDragController::cursorDidChange);
    dragSwatch(0, 1, slot(1, 0));
    EXPECT_EQ(arrangements.count(), 0);
    EXPECT_EQ(cursors.count(), 0);
}

TEST_F(Drag, AMovedSwatchKeepsItsFavorite) {
    m_machine.settings().pinSwatch(m_a.scales().first().swatches().at(1), m_a,
                                   m_a.scales().first());
    dragSwatch(0, 1, slot(1, 0));
    m_drag.end();
    ASSERT_EQ(m_machine.settings().pinnedColors().size(), 1);
    EXPECT_EQ(m_machine.settings().pinnedColors().first()->scaleId, scaleId(1));
}

} // namespace
} // namespace dropshade
