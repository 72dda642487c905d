// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "palettes/Palette.h"

#include "support/Palettes.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

#include <QSet>

namespace dropshade {
namespace {

QSet<QUuid> idsOf(const Palette& palette) {
    QSet<QUuid> ids = {palette.id()};
    for (const PaletteScale& scale : palette.scales()) {
        ids.insert(scale.id());
        for (const PaletteSwatch& swatch : scale.swatches())
            ids.insert(swatch.id());
    }
    return ids;
}

Palette example() {
    return makePalette("Sea", {makeScale("Deep", {"navy", "#0000ff", "no colour"}),
                               makeScale("Shore", {"tan"}), makeScale("Empty", {})});
}

TEST(Palette, CopiesItselfWithNewIdsAtEveryLevel) {
    const Palette source = example();
    const Palette copy = source.freshCopy(ReferenceTime{5.0});
    EXPECT_EQ(idsOf(copy).size(), 8);
    EXPECT_FALSE(idsOf(copy).intersects(idsOf(source)));
    EXPECT_EQ(copy.name(), source.name());
    ASSERT_EQ(copy.scales().size(), 3);
    EXPECT_EQ(copy.scales().at(0).name(), QStringLiteral("Deep"));
    EXPECT_EQ(copy.scales().at(0).swatches().at(2).value(), QStringLiteral("no colour"));
    EXPECT_TRUE(copy.scales().at(2).swatches().isEmpty());
}

TEST(Palette, CarriesTheMomentOfCopyingNotTheSources) {
    EXPECT_EQ(example().freshCopy(ReferenceTime{5.0}).lastModified(), ReferenceTime{5.0});
}

TEST(PaletteScale, CopiesItselfWithNewIdsFromItsLevelDown) {
    const PaletteScale source = makeScale("Deep", {"navy", "blue"});
    const PaletteScale copy = source.freshCopy();
    EXPECT_NE(copy.id(), source.id());
    EXPECT_EQ(copy.name(), source.name());
    for (qsizetype index = 0; index < 2; ++index) {
        EXPECT_NE(copy.swatches().at(index), source.swatches().at(index));
        EXPECT_EQ(copy.swatches().at(index).value(), source.swatches().at(index).value());
    }
}

TEST(Palette, GetsANewIdUnlessGivenOne) {
    EXPECT_NE(makePalette("a").id(), makePalette("a").id());
    EXPECT_NE(makeScale("a", {}).id(), makeScale("a", {}).id());
}

TEST(Palette, IsAValueWhoseCopiesShareUntilOneChanges) {
    const Palette original = example();
    Palette copy = original;
    EXPECT_EQ(sizeof(Palette), sizeof(void*));
    EXPECT_EQ(copy.scales().constData(), original.scales().constData());
    copy.setName(QStringLiteral("Lake"));
    copy.setScales({});
    copy.setLastModified(ReferenceTime{1.0});
    EXPECT_TRUE(isSame(original, Palette(original.id(), QStringLiteral("Sea"), original.scales(),
                                         ReferenceTime{700000000.5})));
    EXPECT_EQ(copy.id(), original.id());
    EXPECT_EQ(copy.name(), QStringLiteral("Lake"));
}

TEST(PaletteScale, IsAValueWhoseCopiesShareUntilOneChanges) {
    const PaletteScale original = makeScale("Deep", {"navy"});
    PaletteScale copy = original;
    EXPECT_EQ(sizeof(PaletteScale), sizeof(void*));
    EXPECT_EQ(copy.swatches().constData(), original.swatches().constData());
    copy.setName(QStringLiteral("Dark"));
    copy.setSwatches({});
    EXPECT_EQ(original.name(), QStringLiteral("Deep"));
    EXPECT_EQ(original.swatches().size(), 1);
    EXPECT_EQ(copy.id(), original.id());
}

} // namespace
} // namespace dropshade
