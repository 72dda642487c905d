// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "WindowFixture.h"
#include "support/QtPrinters.h"

#include <gmock/gmock.h>

namespace dropshade {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// What is open

TEST_F(PalettesWindowModel, AllThatAreNotStoredAsCollapsedAreOpenAtTheStart) {
    EXPECT_EQ(openness(), QStringLiteral("++"));
    EXPECT_TRUE(m_model.showsScales(seaId()));
}

TEST_F(PalettesWindowModel, OpeningOnePaletteClosesTheOthersAndStoresBoth) {
    m_model.collapseAll();
    m_model.toggleExpanded(seaId());
    m_model.toggleExpanded(landId());
    EXPECT_EQ(openness(), QStringLiteral("-+"));
    EXPECT_EQ(collapsed(), QSet<QUuid>{seaId()});
}

TEST_F(PalettesWindowModel, SeveralThatWereOpenStayOpenUntilOneIsOpened) {
    const Palette third = makePalette("Sky");
    store().setCollapsed(third.id(), true);
    store().setPalettes(store().palettes() + QList{third});
    EXPECT_EQ(openness(), QStringLiteral("++-"));
    m_model.toggleExpanded(landId());
    EXPECT_EQ(openness(), QStringLiteral("+--")) << "closing one closes no other";
    m_model.toggleExpanded(third.id());
    EXPECT_EQ(openness(), QStringLiteral("--+"));
}

TEST_F(PalettesWindowModel, ThePaletteOpenedLastLeavesTheOthersWhenItIsOpenedAgain) {
    m_model.collapseAll();
    m_model.toggleExpanded(seaId());
    m_model.toggleExpanded(seaId());
    m_model.createFromScratch();
    m_model.toggleExpanded(seaId());
    EXPECT_EQ(openness(), QStringLiteral("+-+"));
}

TEST_F(PalettesWindowModel, ScalesShowATurnAfterThePaletteOpensAndGoAtOnce) {
    m_model.collapseAll();
    EXPECT_FALSE(m_model.showsScales(seaId()));
    m_model.toggleExpanded(seaId());
    EXPECT_TRUE(m_model.isExpanded(seaId()));
    EXPECT_FALSE(m_model.showsScales(seaId()));
    scheduler().advance(0);
    EXPECT_TRUE(m_model.showsScales(seaId()));
    m_model.toggleExpanded(seaId());
    EXPECT_FALSE(m_model.showsScales(seaId()));
}

TEST_F(PalettesWindowModel, APaletteClosedBeforeItsScalesShowNeverShowsThem) {
    m_model.collapseAll();
    m_model.toggleExpanded(seaId());
    m_model.toggleExpanded(seaId());
    scheduler().advance(0);
    EXPECT_FALSE(m_model.showsScales(seaId()));
}

TEST_F(PalettesWindowModel, CollapsingAllIsOneWriteOfTheSetAndNoSave) {
    m_model.collapseAll();
    EXPECT_EQ(collapsed(), (QSet<QUuid>{seaId(), landId()}));
    EXPECT_FALSE(store().hasPendingSave());
}

TEST_F(PalettesWindowModel, APalettesDragCollapsesAll) {
    m_model.drag().paletteDragChanged(DragValue{{0, 0}, {0, 5}}, seaId());
    m_model.drag().end();
    EXPECT_EQ(openness(), QStringLiteral("--"));
}

TEST_F(PalettesWindowModel, WhatIsOpenSurvivesChangesOfTheList) {
    m_model.toggleExpanded(landId());
    store().setPalettes({m_land, m_sea});
    EXPECT_EQ(openness(), QStringLiteral("-+"));
    EXPECT_TRUE(m_model.isExpanded(seaId()));
}

// Arrangement

TEST_F(PalettesWindowModel, IsCompactAt300PointsAndNotAt301) {
    const SignalCount changes(m_model, &PalettesModel::compactDidChange);
    m_model.setWidth(301.0);
    EXPECT_FALSE(m_model.isCompact());
    m_model.setWidth(300.0);
    EXPECT_TRUE(m_model.isCompact());
    m_model.setWidth(160.0);
    EXPECT_EQ(changes.count(), 1);
}

TEST_F(PalettesWindowModel, TheColumnOfNamesIsAFifthOfTheRowsWithinLimits) {
    EXPECT_EQ(PalettesModel::labelWidth(300.0), 80.0);
    EXPECT_EQ(PalettesModel::labelWidth(500.0), 100.0);
    EXPECT_EQ(PalettesModel::labelWidth(536.0), 107.0);
    EXPECT_EQ(PalettesModel::labelWidth(1200.0), 200.0);
    EXPECT_EQ(PalettesModel::labelWidth(0.0), 110.0);
}

TEST_F(PalettesWindowModel, ShowsTheWorkingCopiesOfADrag) {
    m_model.drag().setPaletteFrames(
        {{seaId(), QRectF(0, 0, 100, 40)}, {landId(), QRectF(0, 40, 100, 40)}});
    m_model.drag().paletteDragChanged(DragValue{{5, 5}, {5, 60}}, seaId());
    EXPECT_EQ(m_model.shownPalettes().first().id(), landId());
    EXPECT_EQ(store().palettes().first().id(), seaId());
    m_model.drag().end();
    m_model.drag().scaleDragChanged(seaId(), scaleId(0), DragValue{{5, 5}, {5, 60}});
    EXPECT_EQ(&m_model.shownScales(sea()), &m_model.drag().activeLocalScales());
    EXPECT_EQ(m_model.shownScales(m_land).first().id(), m_land.scales().first().id());
}

// New palettes

TEST_F(PalettesWindowModel, APaletteFromScratchComesLastWithThreeGreysInOneScale) {
    m_model.createFromScratch();
    ASSERT_EQ(store().palettes().size(), 3);
    const Palette palette = store().palettes().last();
    EXPECT_EQ(palette.name(), QStringLiteral("New Palette"));
    ASSERT_EQ(palette.scales().size(), 1);
    const PaletteScale scale = palette.scales().first();
    EXPECT_EQ(scale.name(), QStringLiteral("Untitled"));
    ASSERT_EQ(scale.swatches().size(), 3);
    EXPECT_EQ(scale.swatches().at(0).value(), QStringLiteral("#ffffff"));
    EXPECT_EQ(scale.swatches().at(1).value(), QStringLiteral("#808080"));
    EXPECT_EQ(scale.swatches().at(2).value(), QStringLiteral("#000000"));
    EXPECT_FALSE(scale.swatches().at(0).label());
    EXPECT_TRUE(store().hasPendingSave());
}

TEST_F(PalettesWindowModel, APaletteFromScratchIsScrolledToAndRenamedATurnLater) {
    m_model.createFromScratch();
    const QUuid id = store().palettes().last().id();
    EXPECT_EQ(m_model.pendingScrollToId(), id);
    EXPECT_EQ(m_model.pendingRenamePaletteId(), id);
    EXPECT_THAT(m_renamed, IsEmpty());
    scheduler().advance(0);
    EXPECT_THAT(m_renamed, ElementsAre(id));
    EXPECT_FALSE(m_model.pendingRenamePaletteId());
    EXPECT_EQ(m_model.takePendingScrollToId(), id);
    EXPECT_FALSE(m_model.pendingScrollToId());
}

TEST_F(PalettesWindowModel, ANewPaletteKeepsADuplicateName) {
    m_model.createFromScratch();
    m_model.createFromScratch();
    EXPECT_EQ(store().palettes().at(3).name(), QStringLiteral("New Palette"));
}

TEST_F(PalettesWindowModel, APresetIsAppendedUnderTheTypedNameAndScrolledTo) {
    const auto picker = m_model.makePresetPicker();
    picker->setName(QStringLiteral("  Brand "));
    EXPECT_TRUE(picker->add());
    const Palette added = store().palettes().last();
    EXPECT_EQ(added.name(), QStringLiteral("Brand"));
    EXPECT_EQ(m_model.pendingScrollToId(), added.id());
    EXPECT_TRUE(store().hasPendingSave());
    EXPECT_TRUE(m_model.isExpanded(added.id()));
}

TEST_F(PalettesWindowModel, APresetAddedTwiceGivesTwoUnrelatedPalettesOfOneName) {
    const auto picker = m_model.makePresetPicker();
    picker->add();
    picker->add();
    const Palette first = store().palettes().at(2);
    const Palette second = store().palettes().at(3);
    EXPECT_EQ(first.name(), second.name());
    EXPECT_NE(first.id(), second.id());
    EXPECT_NE(first.scales().first().id(), second.scales().first().id());
}

// Scales

TEST_F(PalettesWindowModel, AddingAScaleOpensThePaletteAndAsksForAName) {
    m_model.collapseAll();
    m_model.addScale(seaId());
    EXPECT_EQ(openness(), QStringLiteral("+-"));
    const QUuid id = sea().scales().last().id();
    EXPECT_EQ(m_model.pendingScrollToId(), id);
    EXPECT_EQ(m_model.pendingRenameScaleId(), id);
    scheduler().advance(0);
    EXPECT_THAT(m_renamed, ElementsAre(id));
    EXPECT_TRUE(m_model.showsScales(seaId()));
    EXPECT_FALSE(m_model.pendingRenameScaleId());
}

TEST_F(PalettesWindowModel, AddingAScaleToAnOpenPaletteClosesNoOther) {
    m_model.addScale(seaId());
    EXPECT_EQ(openness(), QStringLiteral("++"));
}

TEST_F(PalettesWindowModel, AddingAScaleToWhatIsGoneDoesNothing) {
    m_model.addScale(QUuid::createUuid());
    scheduler().advance(0);
    EXPECT_FALSE(m_model.pendingScrollToId());
    EXPECT_THAT(m_renamed, IsEmpty());
}

TEST_F(PalettesWindowModel, ANewScaleThatIsGoneATurnLaterIsNotRenamed) {
    m_model.addScale(seaId());
    store().deletePalette(seaId());
    scheduler().advance(0);
    EXPECT_THAT(m_renamed, IsEmpty());
}

// Copying and favorites

TEST_F(PalettesWindowModel, AClickCopiesInTheFormatOfTheSettings) {
    m_model.copySwatch(path(0, 1));
    ASSERT_EQ(m_commands.copies.size(), 1);
    EXPECT_EQ(m_commands.copies.first().first, SRGBColor(0.0, 0.0, 1.0));
    EXPECT_FALSE(m_commands.copies.first().second);
}

TEST_F(PalettesWindowModel, ASwatchThatIsGoneIsNotCopied) {
    SwatchPath gone = path(0, 1);
    store().deleteSwatch(gone.paletteId, gone.scaleId, gone.swatchId);
    m_model.copySwatch(gone);
    EXPECT_THAT(m_commands.copies, IsEmpty());
}

TEST_F(PalettesWindowModel, AFavoriteIsPinnedAndUnpinned) {
    const SignalCount changes(m_model, &PalettesModel::favoritesDidChange);
    m_model.toggleFavorite(path(0, 1));
    EXPECT_TRUE(m_model.isFavorite(swatchId(0, 1)));
    m_model.toggleFavorite(path(0, 1));
    EXPECT_FALSE(m_model.isFavorite(swatchId(0, 1)));
    EXPECT_EQ(changes.count(), 2);
}

// Deleting

TEST_F(PalettesWindowModel, DeletingAPaletteAsksByItsName) {
    m_model.deletePalette(seaId(), true);
    ASSERT_EQ(m_questions.size(), 1);
    EXPECT_EQ(m_questions.first().title, QStringLiteral("Delete “Sea”?"));
    EXPECT_EQ(m_questions.first().message,
              QStringLiteral("This palette will be permanently removed."));
    EXPECT_EQ(store().palettes().size(), 2);
    m_questions.first().confirmed();
    EXPECT_EQ(names(), QStringLiteral("Land"));
}

TEST_F(PalettesWindowModel, DeletingAScaleAsksByItsName) {
    m_model.deleteScale(seaId(), scaleId(0), true);
    ASSERT_EQ(m_questions.size(), 1);
    EXPECT_EQ(m_questions.first().title, QStringLiteral("Delete “Deep”?"));
    EXPECT_EQ(m_questions.first().message,
              QStringLiteral("This scale and its colors will be permanently removed."));
    m_questions.first().confirmed();
    EXPECT_EQ(scaleNames(), QStringLiteral("Shore"));
}

TEST_F(PalettesWindowModel, DeletingASwatchAsksAndShowsIt) {
    m_model.deleteSwatch(path(0, 1), true);
    ASSERT_EQ(m_questions.size(), 1);
    EXPECT_EQ(m_questions.first().title, QStringLiteral("Delete this color?"));
    EXPECT_EQ(m_questions.first().message,
              QStringLiteral("This swatch will be permanently removed."));
    EXPECT_EQ(m_questions.first().swatch->id(), swatchId(0, 1));
    m_questions.first().confirmed();
    EXPECT_EQ(values(0), QStringLiteral("navy aqua"));
}

TEST_F(PalettesWindowModel, DeletingWithoutAQuestionDeletesAtOnce) {
    m_model.deleteSwatch(path(0, 1), false);
    EXPECT_EQ(values(0), QStringLiteral("navy aqua"));
    m_model.deleteScale(seaId(), scaleId(0), false);
    EXPECT_EQ(scaleNames(), QStringLiteral("Shore"));
    m_model.deletePalette(seaId(), false);
    EXPECT_EQ(names(), QStringLiteral("Land"));
    EXPECT_THAT(m_questions, IsEmpty());
}

TEST_F(PalettesWindowModel, ANameWithAPercentSignIsAskedForAsItIs) {
    store().renamePalette(seaId(), QStringLiteral("50%1 & <b>"));
    m_model.deletePalette(seaId(), true);
    EXPECT_EQ(m_questions.first().title, QStringLiteral("Delete “50%1 & <b>”?"));
}

// Renaming

TEST_F(PalettesWindowModel, ARenameEndsWithTheTrimmedName) {
    const auto rename = m_model.makePaletteRename(seaId());
    EXPECT_EQ(rename->title(), QStringLiteral("Palette Name"));
    EXPECT_EQ(rename->name(), QStringLiteral("Sea"));
    rename->setName(QStringLiteral(" Ocean "));
    rename->dismissed();
    EXPECT_EQ(sea().name(), QStringLiteral("Ocean"));
}

TEST_F(PalettesWindowModel, ACancelledRenameChangesNothing) {
    const auto rename = m_model.makeScaleRename(seaId(), scaleId(0));
    EXPECT_EQ(rename->title(), QStringLiteral("Scale Name"));
    rename->setName(QStringLiteral("Abyss"));
    rename->cancel();
    rename->dismissed();
    expectUntouched();
}

TEST_F(PalettesWindowModel, ABlankNameChangesNothing) {
    const auto rename = m_model.makeScaleRename(seaId(), scaleId(0));
    rename->setName(QStringLiteral("   "));
    rename->dismissed();
    expectUntouched();
}

TEST_F(PalettesWindowModel, WhatIsGoneIsNotEdited) {
    const QUuid gone = QUuid::createUuid();
    EXPECT_FALSE(m_model.makePaletteRename(gone));
    EXPECT_FALSE(m_model.makeScaleRename(seaId(), gone));
    EXPECT_FALSE(m_model.makeSwatchAdd(gone, scaleId(0)));
    EXPECT_FALSE(m_model.makeSwatchEdit({seaId(), scaleId(0), gone}));
}

// Editing what another machine changes meanwhile

TEST_F(PalettesWindowModel, AnEditorThatWasOnlyOpenedTakesNoForeignNameBack) {
    const auto paletteRename = m_model.makePaletteRename(seaId());
    const auto scaleRename = m_model.makeScaleRename(seaId(), scaleId(0));
    store().renamePalette(seaId(), QStringLiteral("Ocean"));
    store().renameScale(seaId(), scaleId(0), QStringLiteral("Abyss"));
    paletteRename->dismissed();
    scaleRename->dismissed();
    EXPECT_EQ(sea().name(), QStringLiteral("Ocean"));
    EXPECT_EQ(scaleNames(), QStringLiteral("Abyss Shore"));
}

TEST_F(PalettesWindowModel, ANameThatWasTypedWinsOverAForeignOne) {
    const auto rename = m_model.makePaletteRename(seaId());
    rename->setName(QStringLiteral("Lake"));
    store().renamePalette(seaId(), QStringLiteral("Ocean"));
    rename->dismissed();
    EXPECT_EQ(sea().name(), QStringLiteral("Lake"));
}

TEST_F(PalettesWindowModel, ACancelledEditTakesNoForeignChangeBack) {
    const PaletteSwatch foreign(swatchId(0, 1), QStringLiteral("#123456"), QStringLiteral("sky"));
    const auto edit = m_model.makeSwatchEdit(path(0, 1));
    store().updateSwatch(seaId(), scaleId(0), foreign);
    edit->cancel();
    EXPECT_EQ(values(0), QStringLiteral("navy #123456 aqua"));
    EXPECT_EQ(m_model.swatch(path(0, 1))->label(), QStringLiteral("sky"));
}

TEST_F(PalettesWindowModel, AnEditWritesOnlyWhatTheUserTouchedOverAForeignChange) {
    const auto edit = m_model.makeSwatchEdit(path(0, 1));
    edit->typeLabel(QStringLiteral("s"));
    EXPECT_EQ(values(0), QStringLiteral("navy #0000ff aqua"));
    store().updateSwatch(
        seaId(), scaleId(0),
        PaletteSwatch(swatchId(0, 1), QStringLiteral("#123456"), QStringLiteral("foreign")));
    edit->typeLabel(QStringLiteral("sk"));
    EXPECT_EQ(values(0), QStringLiteral("navy #123456 aqua"));
    EXPECT_EQ(m_model.swatch(path(0, 1))->label(), QStringLiteral("sk"));
    edit->typeLabel(QStringLiteral("sky"));
    EXPECT_EQ(values(0), QStringLiteral("navy #123456 aqua"));
    edit->pickColor(SRGBColor(1.0, 0.0, 0.0));
    EXPECT_EQ(values(0), QStringLiteral("navy #ff0000 aqua"));
    edit->cancel();
    EXPECT_EQ(values(0), QStringLiteral("navy blue aqua"));
    EXPECT_FALSE(m_model.swatch(path(0, 1))->label());
}

TEST_F(PalettesWindowModel, ASwatchDeletedElsewhereIsNotMadeAnewByItsEditor) {
    const auto edit = m_model.makeSwatchEdit(path(0, 1));
    store().deleteSwatch(seaId(), scaleId(0), swatchId(0, 1));
    const ReferenceTime stamp = sea().lastModified();
    scheduler().advance(1000);
    edit->typeLabel(QStringLiteral("sky"));
    edit->cancel();
    EXPECT_EQ(values(0), QStringLiteral("navy aqua"));
    EXPECT_EQ(sea().lastModified(), stamp);
}

// The status bar

TEST_F(PalettesWindowModel, TheStatusBarFollowsAnEditOfItsSwatch) {
    m_model.hover().setSwatch(m_model.swatch(path(0, 1)));
    m_model.makeSwatchEdit(path(0, 1))->typeLabel(QStringLiteral("sky"));
    EXPECT_EQ(m_model.hover().swatch()->label(), QStringLiteral("sky"));
}

TEST_F(PalettesWindowModel, TheStatusBarForgetsASwatchThatIsDeleted) {
    m_model.hover().setSwatch(m_model.swatch(path(0, 1)));
    m_model.deleteSwatch(path(0, 1), false);
    EXPECT_FALSE(m_model.hover().swatch());
}

} // namespace
} // namespace dropshade
