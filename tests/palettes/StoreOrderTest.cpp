// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "StoreFixture.h"
#include "support/QtPrinters.h"

namespace dropshade {
namespace {

TEST_F(PaletteStore, ReordersPalettesAndStampsNone) {
    store().reorderPalettes({landId(), seaId()});
    EXPECT_EQ(names(), QStringLiteral("Land Sea"));
    for (const Palette& palette : store().palettes())
        EXPECT_EQ(palette.lastModified(), loaded());
    expectChangedAndSaved();
}

TEST_F(PaletteStore, RefusesAnOrderThatLeavesAPaletteOut) {
    store().reorderPalettes({landId()});
    store().reorderPalettes({});
    store().reorderPalettes({landId(), QUuid::createUuid()});
    expectUntouched();
}

TEST_F(PaletteStore, RefusesAnOrderThatNamesOneTwice) {
    store().reorderPalettes({landId(), landId()});
    store().reorderPalettes({landId(), seaId(), landId()});
    store().reorderScales(seaId(), {scaleId(1), scaleId(1)});
    store().reorderScales(seaId(), {scaleId(1), scaleId(0), scaleId(0)});
    store().reorderSwatches(seaId(), scaleId(0), {swatchId(0, 2), swatchId(0, 2), swatchId(0, 1)});
    expectUntouched();
}

TEST_F(PaletteStore, PassesOverUnknownIdsInACompleteOrder) {
    store().reorderPalettes({QUuid::createUuid(), landId(), QUuid::createUuid(), seaId()});
    EXPECT_EQ(names(), QStringLiteral("Land Sea"));
    store().reorderScales(seaId(), {scaleId(1), QUuid::createUuid(), scaleId(0)});
    EXPECT_EQ(scaleNames(), QStringLiteral("Shore Deep"));
}

TEST_F(PaletteStore, SavesThoughTheOrderOfPalettesIsThePresentOne) {
    store().reorderPalettes({seaId(), landId()});
    EXPECT_TRUE(store().hasPendingSave());
}

TEST_F(PaletteStore, ReordersScales) {
    store().reorderScales(seaId(), {scaleId(1), scaleId(0)});
    EXPECT_EQ(scaleNames(), QStringLiteral("Shore Deep"));
    expectStampedAndSaved();
}

TEST_F(PaletteStore, ReordersSwatches) {
    store().reorderSwatches(seaId(), scaleId(0), {swatchId(0, 2), swatchId(0, 0), swatchId(0, 1)});
    EXPECT_EQ(values(0), QStringLiteral("aqua navy blue"));
    expectStampedAndSaved();
}

TEST_F(PaletteStore, NeitherStampsNorSavesThePresentOrderOfScalesOrSwatches) {
    store().reorderScales(seaId(), {scaleId(0), scaleId(1)});
    store().reorderScales(seaId(), {scaleId(0), QUuid::createUuid(), scaleId(1)});
    store().reorderSwatches(seaId(), scaleId(0), {swatchId(0, 0), swatchId(0, 1), swatchId(0, 2)});
    expectUntouched();
}

TEST_F(PaletteStore, RefusesAnOrderThatLeavesAScaleOrSwatchOut) {
    store().reorderScales(seaId(), {scaleId(1)});
    store().reorderSwatches(seaId(), scaleId(0), {swatchId(0, 2), swatchId(0, 1)});
    store().reorderSwatches(seaId(), scaleId(0), {swatchId(0, 2), swatchId(0, 1), swatchId(1, 0)});
    expectUntouched();
}

TEST_F(PaletteStore, RefusesEveryOrderOfPalettesThatShareAnId) {
    store().setPalettes({m_sea, m_sea});
    store().reorderPalettes({seaId(), seaId()});
    store().reorderPalettes({seaId()});
    EXPECT_EQ(names(), QStringLiteral("Sea Sea"));
    EXPECT_FALSE(store().hasPendingSave());
}

TEST_F(PaletteStore, MovesASwatchToAnotherScaleWithItsPinAndUnderItsId) {
    pinEverything();
    store().moveSwatch(seaId(), scaleId(0), swatchId(0, 1), scaleId(1), 0);
    EXPECT_EQ(values(0), QStringLiteral("navy aqua"));
    EXPECT_EQ(values(1), QStringLiteral("blue tan"));
    EXPECT_EQ(sea().scales().at(1).swatches().at(0).id(), swatchId(0, 1));
    EXPECT_EQ(settings().pinnedColors().at(1)->scaleId, scaleId(1));
    EXPECT_EQ(settings().pinnedColors().at(1)->scaleName, QStringLiteral("Shore"));
    EXPECT_EQ(sea().lastModified(), now());
    settings().validatePins(store().palettes());
    EXPECT_EQ(settings().pinnedColors().size(), 5);
}

TEST_F(PaletteStore, MovesASwatchToTheNearestPlaceThereIs) {
    store().moveSwatch(seaId(), scaleId(0), swatchId(0, 0), scaleId(1), 99);
    EXPECT_EQ(values(1), QStringLiteral("tan navy"));
    store().moveSwatch(seaId(), scaleId(0), swatchId(0, 1), scaleId(1), -5);
    EXPECT_EQ(values(1), QStringLiteral("blue tan navy"));
    store().moveSwatch(seaId(), scaleId(0), swatchId(0, 2), scaleId(1), 1);
    EXPECT_EQ(values(1), QStringLiteral("blue aqua tan navy"));
    EXPECT_TRUE(sea().scales().at(0).swatches().isEmpty());
}

TEST_F(PaletteStore, ShowsAMoveAsARemovalAndAnInsertion) {
    QStringList seen;
    QObject::connect(&store(), &UserPaletteStore::palettesDidChange, &store(),
                     [&] { seen.append(values(0) + QLatin1Char('|') + values(1)); });
    store().moveSwatch(seaId(), scaleId(0), swatchId(0, 1), scaleId(1), 0);
    EXPECT_EQ(seen,
              (QStringList{QStringLiteral("navy aqua|tan"), QStringLiteral("navy aqua|blue tan")}));
}

TEST_F(PaletteStore, LeavesMovesWithinAScaleToReordering) {
    store().moveSwatch(seaId(), scaleId(0), swatchId(0, 0), scaleId(0), 2);
    expectUntouched();
}

TEST_F(PaletteStore, SurvivesAnObserverThatDeletesThePaletteInTheMidstOfAMove) {
    bool isFirst = true;
    QObject::connect(&store(), &UserPaletteStore::palettesDidChange, &store(), [&] {
        if (std::exchange(isFirst, false))
            store().deletePalette(seaId());
    });
    store().moveSwatch(seaId(), scaleId(0), swatchId(0, 1), scaleId(1), 0);
    EXPECT_EQ(names(), QStringLiteral("Land"));
}

} // namespace
} // namespace dropshade
