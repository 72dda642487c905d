// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "palettes/PresetChoice.h"

#include "support/Palettes.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

namespace dropshade {
namespace {

/// A preset of scales with three swatches each, the middle one named after its scale.
Palette presetOf(int scaleCount) {
    QList<PaletteScale> scales;
    for (int index = 0; index < scaleCount; ++index)
        scales.append(PaletteScale(QString::number(index), {PaletteSwatch(QStringLiteral("a")),
                                                            PaletteSwatch(QString::number(index)),
                                                            PaletteSwatch(QStringLiteral("b"))}));
    return makePalette("Preset", scales);
}

QString chipsOf(const Palette& preset) {
    QStringList values;
    for (const PaletteSwatch& chip : presetChips(preset))
        values.append(chip.value());
    return values.join(QLatin1Char(' '));
}

TEST(PresetChips, AreNineForTwentySixScales) {
    EXPECT_EQ(chipsOf(presetOf(26)), QStringLiteral("0 3 6 9 12 15 18 21 24"));
}

TEST(PresetChips, AreOneForEachOfUpToTenScales) {
    EXPECT_EQ(chipsOf(presetOf(5)), QStringLiteral("0 1 2 3 4"));
    EXPECT_EQ(presetChips(presetOf(10)).size(), 10);
    EXPECT_EQ(chipsOf(presetOf(11)), QStringLiteral("0 2 4 6 8 10"));
    EXPECT_EQ(presetChips(presetOf(1)).size(), 1);
}

TEST(PresetChips, AreNeverMoreThanTen) {
    for (int count = 0; count < 200; ++count)
        EXPECT_LE(presetChips(presetOf(count)).size(), 10);
}

TEST(PresetChips, AreNoneWithoutScalesOrSwatches) {
    EXPECT_TRUE(presetChips(presetOf(0)).isEmpty());
    const Palette holes =
        makePalette("p", {makeScale("a", {}), makeScale("b", {"x", "y"}), makeScale("c", {})});
    EXPECT_EQ(chipsOf(holes), QStringLiteral("y"));
}

QString spineOf(const Palette& palette) {
    QStringList values;
    for (const PaletteSwatch& chip : spineChips(palette))
        values.append(chip.value());
    return values.join(QLatin1Char(' '));
}

TEST(SpineChips, AreTheSwatchesThemselvesWhereThereIsOneScale) {
    EXPECT_EQ(spineOf(makePalette("p", {makeScale("a", {"x", "y", "z"})})),
              QStringLiteral("x y z"));
    QList<PaletteSwatch> many;
    for (int index = 0; index < 24; ++index)
        many.append(PaletteSwatch(QString::number(index)));
    const Palette palette = makePalette("p", {PaletteScale(QStringLiteral("a"), many)});
    EXPECT_EQ(spineOf(palette), QStringLiteral("0 3 6 9 12 15 18 21"));
}

TEST(SpineChips, AreThoseOfAPresetWhereThereAreMoreScales) {
    EXPECT_EQ(spineOf(presetOf(3)), QStringLiteral("0 1 2"));
    EXPECT_TRUE(spineChips(presetOf(0)).isEmpty());
}

TEST(PresetCopy, HasTheTrimmedNameThatWasTypedOrElseThePresetsOwn) {
    const ReferenceTime now{9.0};
    const Palette preset = presetOf(1);
    EXPECT_EQ(presetCopy(preset, QStringLiteral(" Mine "), now).name(), QStringLiteral("Mine"));
    EXPECT_EQ(presetCopy(preset, QString(), now).name(), QStringLiteral("Preset"));
    EXPECT_EQ(presetCopy(preset, QStringLiteral(" \n"), now).name(), QStringLiteral("Preset"));
    EXPECT_EQ(presetCopy(preset, QString(), now).lastModified(), now);
}

TEST(PresetCopy, HasUnrelatedIdsEachTime) {
    const Palette preset = presetOf(1);
    const Palette first = presetCopy(preset, QString(), {});
    const Palette second = presetCopy(preset, QString(), {});
    EXPECT_NE(first.id(), second.id());
    EXPECT_NE(first.id(), preset.id());
    EXPECT_NE(first.scales().at(0).id(), second.scales().at(0).id());
}

} // namespace
} // namespace dropshade
