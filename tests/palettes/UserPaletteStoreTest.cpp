// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "palettes/UserPaletteStore.h"

#include "StoreFixture.h"
#include "support/QtPrinters.h"
#include "support/SignalCount.h"

#include <gtest/gtest.h>

namespace dropshade {
namespace {

TEST_F(PaletteStore, AddsAFreshCopyInFrontAndReturnsIt) {
    const Palette foreign = makePalette("New", {makeScale("a", {"red"})});
    const Palette added = store().addPalette(foreign);
    EXPECT_EQ(names(), QStringLiteral("New Sea Land"));
    EXPECT_TRUE(isSame(store().palettes().first(), added));
    EXPECT_NE(added.id(), foreign.id());
    EXPECT_NE(added.scales().at(0).id(), foreign.scales().at(0).id());
    EXPECT_NE(added.scales().at(0).swatches().at(0), foreign.scales().at(0).swatches().at(0));
    EXPECT_EQ(added.lastModified(), now());
    expectChangedAndSaved();
}

TEST_F(PaletteStore, AddsUnderANameThatNoPaletteHas) {
    setNames({"Foo", "Foo (2)", "Bar"});
    EXPECT_EQ(store().addPalette(makePalette("Foo")).name(), QStringLiteral("Foo (3)"));
    EXPECT_EQ(store().palettes().first().name(), QStringLiteral("Foo (3)"));
    EXPECT_EQ(store().addPalette(makePalette("foo")).name(), QStringLiteral("foo"));
    EXPECT_EQ(store().addPalette(makePalette("Foo ")).name(), QStringLiteral("Foo "));
}

TEST_F(PaletteStore, AddsANamelessPaletteAsImported) {
    EXPECT_EQ(store().addPalette(makePalette("")).name(), QStringLiteral("Imported Palette"));
    EXPECT_EQ(store().addPalette(makePalette("")).name(), QStringLiteral("Imported Palette (2)"));
}

TEST_F(PaletteStore, DeletesAPaletteWithItsPins) {
    pinEverything();
    store().deletePalette(seaId());
    EXPECT_EQ(names(), QStringLiteral("Land"));
    EXPECT_EQ(settings().pinnedColors().size(), 1);
    expectChangedAndSaved();
}

TEST_F(PaletteStore, SavesThoughThePaletteToDeleteIsUnknown) {
    store().deletePalette(QUuid::createUuid());
    EXPECT_EQ(names(), QStringLiteral("Sea Land"));
    EXPECT_TRUE(store().hasPendingSave());
}

TEST_F(PaletteStore, LeavesACollapsedIdBehindWhenItDeletesThePalette) {
    store().setCollapsed(seaId(), true);
    store().deletePalette(seaId());
    EXPECT_TRUE(store().collapsedPaletteIds().contains(seaId()));
}

TEST_F(PaletteStore, DuplicatesDirectlyBehindTheSourceTheNewestFirst) {
    store().duplicatePalette(seaId());
    const QUuid first = store().palettes().at(1).id();
    store().duplicatePalette(seaId());
    EXPECT_EQ(names(), QStringLiteral("Sea Sea copy Sea copy Land"));
    EXPECT_EQ(store().palettes().at(2).id(), first);
    EXPECT_EQ(store().palettes().at(1).lastModified(), now());
    EXPECT_EQ(sea().lastModified(), loaded());
    EXPECT_NE(store().palettes().at(1).scales().at(0).id(), scaleId(0));
}

TEST_F(PaletteStore, RenamesAPaletteToATrimmedNameWithItsPins) {
    pinEverything();
    store().renamePalette(seaId(), QStringLiteral(" \n Foo\t "));
    EXPECT_EQ(sea().name(), QStringLiteral("Foo"));
    EXPECT_EQ(settings().pinnedColors().at(0)->paletteName, QStringLiteral("Foo"));
    expectStampedAndSaved();
}

TEST_F(PaletteStore, RenamesAScaleWithItsPins) {
    pinEverything();
    store().renameScale(seaId(), scaleId(1), QStringLiteral("Beach"));
    EXPECT_EQ(sea().scales().at(1).name(), QStringLiteral("Beach"));
    EXPECT_EQ(settings().pinnedColors().at(3)->scaleName, QStringLiteral("Beach"));
    EXPECT_EQ(settings().pinnedColors().at(0)->scaleName, QStringLiteral("Deep"));
    expectStampedAndSaved();
}

TEST_F(PaletteStore, IgnoresABlankNameAndThePresentOne) {
    store().renamePalette(seaId(), QStringLiteral("   "));
    store().renamePalette(seaId(), QStringLiteral(" Sea "));
    store().renameScale(seaId(), scaleId(0), QString());
    store().renameScale(seaId(), scaleId(0), QStringLiteral("Deep\n"));
    expectUntouched();
}

TEST_F(PaletteStore, AddsAScaleWithOneWhiteSwatch) {
    const auto id = store().addScale(seaId());
    ASSERT_TRUE(id);
    const PaletteScale scale = sea().scales().last();
    EXPECT_EQ(scale.id(), *id);
    EXPECT_EQ(scale.name(), QStringLiteral("Untitled"));
    ASSERT_EQ(scale.swatches().size(), 1);
    EXPECT_EQ(scale.swatches().at(0).value(), QStringLiteral("#ffffff"));
    EXPECT_FALSE(scale.swatches().at(0).label());
    expectStampedAndSaved();
}

TEST_F(PaletteStore, DuplicatesAScaleDirectlyBehindIt) {
    store().duplicateScale(seaId(), scaleId(0));
    EXPECT_EQ(scaleNames(), QStringLiteral("Deep Deep copy Shore"));
    EXPECT_NE(sea().scales().at(1).id(), scaleId(0));
    EXPECT_EQ(values(1), values(0));
    EXPECT_NE(sea().scales().at(1).swatches().at(0), sea().scales().at(0).swatches().at(0));
    expectStampedAndSaved();
}

TEST_F(PaletteStore, DeletesAScaleWithItsPins) {
    pinEverything();
    store().deleteScale(seaId(), scaleId(0));
    EXPECT_EQ(scaleNames(), QStringLiteral("Shore"));
    EXPECT_EQ(settings().pinnedColors().size(), 2);
    expectStampedAndSaved();
}

TEST_F(PaletteStore, AppendsASwatchAsItIs) {
    const PaletteSwatch swatch(QStringLiteral("lime"), QStringLiteral("x"));
    store().addSwatch(seaId(), scaleId(1), swatch);
    EXPECT_TRUE(isSame(sea().scales().at(1).swatches().last(), swatch));
    expectStampedAndSaved();
}

TEST_F(PaletteStore, ReplacesASwatchWithItsPin) {
    pinEverything();
    const PaletteSwatch swatch(swatchId(0, 1), QStringLiteral("lime"), QString());
    store().updateSwatch(seaId(), scaleId(0), swatch);
    EXPECT_TRUE(isSame(sea().scales().at(0).swatches().at(1), swatch));
    EXPECT_EQ(settings().pinnedColors().at(1)->value, QStringLiteral("lime"));
    EXPECT_EQ(settings().pinnedColors().at(1)->label, QString());
    expectStampedAndSaved();
}

TEST_F(PaletteStore, DeletesASwatchWithItsPin) {
    pinEverything();
    store().deleteSwatch(seaId(), scaleId(0), swatchId(0, 1));
    EXPECT_EQ(values(0), QStringLiteral("navy aqua"));
    EXPECT_EQ(settings().pinnedColors().size(), 4);
    expectStampedAndSaved();
}

TEST_F(PaletteStore, StampsAndSavesThoughTheSwatchToDeleteIsUnknown) {
    store().deleteSwatch(seaId(), scaleId(0), QUuid::createUuid());
    EXPECT_EQ(values(0), QStringLiteral("navy blue aqua"));
    expectStampedAndSaved();
}

TEST_F(PaletteStore, SortsByTheWeightsOfTheEncodedComponents) {
    setValues(0, {"#ff0000", "#00ff00", "#000", "#fff", "#00f"});
    store().sortSwatches(seaId(), scaleId(0), UserPaletteStore::SortOrder::LightToDark);
    EXPECT_EQ(values(0), QStringLiteral("#fff #00ff00 #ff0000 #00f #000"));
    store().sortSwatches(seaId(), scaleId(0), UserPaletteStore::SortOrder::DarkToLight);
    EXPECT_EQ(values(0), QStringLiteral("#000 #00f #ff0000 #00ff00 #fff"));
}

TEST_F(PaletteStore, SortsWithoutLinearisingTheComponents) {
    // The weighted sum of red is 0.2126, between those of these greys, 0.2118 and 0.2157. Their
    // relative luminances are far below red's.
    setValues(0, {"rgb(54, 54, 54)", "#ff0000"});
    store().sortSwatches(seaId(), scaleId(0), UserPaletteStore::SortOrder::LightToDark);
    EXPECT_EQ(values(0), QStringLiteral("#ff0000 rgb(54, 54, 54)"));
    setValues(0, {"#ff0000", "rgb(55, 55, 55)"});
    store().sortSwatches(seaId(), scaleId(0), UserPaletteStore::SortOrder::LightToDark);
    EXPECT_EQ(values(0), QStringLiteral("rgb(55, 55, 55) #ff0000"));
}

TEST_F(PaletteStore, KeepsTheOrderOfEqualsWhenItSorts) {
    setValues(0, {"#808080", "gray", "#fff", "rgb(128 128 128)"});
    store().sortSwatches(seaId(), scaleId(0), UserPaletteStore::SortOrder::LightToDark);
    EXPECT_EQ(values(0), QStringLiteral("#fff #808080 gray rgb(128 128 128)"));
    store().sortSwatches(seaId(), scaleId(0), UserPaletteStore::SortOrder::DarkToLight);
    EXPECT_EQ(values(0), QStringLiteral("#808080 gray rgb(128 128 128) #fff"));
}

TEST_F(PaletteStore, NeitherStampsNorSavesWhenTheSwatchesAreSortedAlready) {
    store().sortSwatches(seaId(), scaleId(1), UserPaletteStore::SortOrder::LightToDark);
    store().sortSwatches(seaId(), scaleId(0), UserPaletteStore::SortOrder::DarkToLight);
    expectUntouched();
}

TEST_F(PaletteStore, MakesANameUniqueByTheFirstFreeNumber) {
    setNames({"a", "a (2)", "a (4)", "b (2)"});
    EXPECT_EQ(store().uniqueName(QStringLiteral("a")), QStringLiteral("a (3)"));
    EXPECT_EQ(store().uniqueName(QStringLiteral("b")), QStringLiteral("b"));
    EXPECT_EQ(store().uniqueName(QStringLiteral("a (2)")), QStringLiteral("a (2) (2)"));
}

TEST_F(PaletteStore, DoesNothingForUnknownIds) {
    const QUuid unknown = QUuid::createUuid();
    const PaletteSwatch swatch(QStringLiteral("red"));
    store().duplicatePalette(unknown);
    store().renamePalette(unknown, QStringLiteral("x"));
    EXPECT_FALSE(store().addScale(unknown));
    for (const auto& [palette, scale] : {std::pair(unknown, scaleId(0)), {seaId(), unknown}}) {
        store().renameScale(palette, scale, QStringLiteral("x"));
        store().duplicateScale(palette, scale);
        store().deleteScale(palette, scale);
        store().addSwatch(palette, scale, swatch);
        store().deleteSwatch(palette, scale, swatchId(0, 0));
        store().sortSwatches(palette, scale, UserPaletteStore::SortOrder::LightToDark);
        store().reorderSwatches(palette, scale, {swatchId(0, 1), swatchId(0, 0), swatchId(0, 2)});
        store().moveSwatch(palette, scale, swatchId(0, 0), scaleId(1), 0);
    }
    store().updateSwatch(seaId(), scaleId(0), swatch);
    store().reorderScales(unknown, {scaleId(1), scaleId(0)});
    store().moveSwatch(seaId(), scaleId(0), unknown, scaleId(1), 0);
    store().moveSwatch(seaId(), scaleId(0), swatchId(0, 0), unknown, 0);
    expectUntouched();
}

TEST_F(PaletteStore, TakesIdsAndSwatchesThatLieInItsOwnPalettes) {
    pinEverything();
    const auto palette = [this]() -> const Palette& { return store().palettes().at(0); };
    const auto scale = [&]() -> const PaletteScale& { return palette().scales().at(0); };
    for (int round = 0; round < 3; ++round) {
        store().renamePalette(palette().id(), QString::number(round));
        store().renameScale(palette().id(), scale().id(), QString::number(round));
        store().updateSwatch(palette().id(), scale().id(), scale().swatches().at(0));
        store().addSwatch(palette().id(), scale().id(), scale().swatches().at(0).freshCopy());
        EXPECT_EQ(settings().pinnedColors().at(0)->paletteName, QString::number(round));
        EXPECT_EQ(settings().pinnedColors().at(0)->scaleName, QString::number(round));
    }
    store().moveSwatch(palette().id(), scale().id(), scale().swatches().at(0).id(),
                       palette().scales().at(1).id(), 0);
    EXPECT_EQ(settings().pinnedColors().at(0)->scaleName, QStringLiteral("Shore"));
    store().deleteSwatch(palette().id(), scale().id(), scale().swatches().at(0).id());
    EXPECT_EQ(settings().pinnedColors().size(), 4);
    store().deleteScale(palette().id(), scale().id());
    EXPECT_EQ(settings().pinnedColors().size(), 3);
    store().deletePalette(palette().id());
    EXPECT_EQ(names(), QStringLiteral("Land"));
    EXPECT_EQ(settings().pinnedColors().size(), 1);
}

TEST_F(PaletteStore, StampsLaterThanBeforeThoughTheClockHasGoneBackwards) {
    store().renamePalette(seaId(), QStringLiteral("New"));
    store().flushPendingSave();
    const ReferenceTime before = sea().lastModified();
    scheduler().setNow(ReferenceTime{before.seconds - 1e8});
    store().renamePalette(seaId(), QStringLiteral("Newer"));
    const ReferenceTime after = sea().lastModified();
    EXPECT_GT(after, before);
    EXPECT_LT(after.seconds, before.seconds + 0.01);
    // Another machine that edits the same copy gives it another moment.
    Machine other;
    other.defaults().setValue(keys::userPalettes, *defaults().read<QByteArray>(keys::userPalettes));
    other.scheduler().setNow(ReferenceTime{before.seconds - 1e8 + 0.25});
    other.store().renamePalette(seaId(), QStringLiteral("Newer"));
    EXPECT_GT(other.store().palettes().first().lastModified(), before);
    EXPECT_NE(other.store().palettes().first().lastModified(), after);
    // Once the clock has caught up, it says what counts.
    scheduler().setNow(ReferenceTime{before.seconds + 1.0});
    store().renamePalette(seaId(), QStringLiteral("Newest"));
    EXPECT_EQ(sea().lastModified(), now());
}

TEST_F(PaletteStore, TakesTheFirstOfTwoPalettesWithOneId) {
    const Palette first = sea();
    Palette second = first;
    second.setName(QStringLiteral("Twin"));
    store().setPalettes({first, second});
    store().renamePalette(seaId(), QStringLiteral("New"));
    EXPECT_EQ(names(), QStringLiteral("New Twin"));
    store().deletePalette(seaId());
    EXPECT_TRUE(store().palettes().isEmpty());
}

} // namespace
} // namespace dropshade
