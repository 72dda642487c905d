// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "sync/ConflictRules.h"

#include "SyncFixture.h"

namespace dropshade {
namespace {

const ReferenceTime now{800'000'000.0};
const CloudValue older = cloudValueOf(numberedPalette(1, 10.0));
const CloudValue newer = cloudValueOf(numberedPalette(1, 20.0));

std::optional<CloudValue> resolve(const CloudConflict& conflict,
                                  const QList<Tombstone>& deletions = {}) {
    return resolvedConflict(conflict, deletions, now);
}

CloudConflict ofPalette(const std::optional<CloudValue>& ours,
                        const std::optional<CloudValue>& theirs) {
    // The clocks say the opposite of the palettes, and first contact changes nothing.
    return {cloudKeys::palette(numberedId(1)), ours, theirs, true, ours == older};
}

TEST(ConflictRules, OfAPaletteTheCopyModifiedLaterStays) {
    EXPECT_EQ(resolve(ofPalette(older, newer)), newer);
    EXPECT_EQ(resolve(ofPalette(newer, older)), newer);
}

TEST(ConflictRules, AnUnreadablePaletteGivesWay) {
    const CloudValue junk = QByteArray("junk");
    const CloudValue foreign = cloudValueOf(numberedPalette(2, 99.0));
    EXPECT_EQ(resolve(ofPalette(older, junk)), older);
    EXPECT_EQ(resolve(ofPalette(older, foreign)), older);
    EXPECT_EQ(resolve(ofPalette(junk, older)), older);
    EXPECT_EQ(resolve(ofPalette(junk, foreign)), foreign);
}

TEST(ConflictRules, ARemovalHoldsWhereThePaletteWasDeletedThenOrLater) {
    const QList<Tombstone> at20 = {{numberedId(1), ReferenceTime{20.0}}};
    const QList<Tombstone> at19 = {{numberedId(1), ReferenceTime{19.0}}};
    EXPECT_EQ(resolve(ofPalette(std::nullopt, newer), at20), std::nullopt);
    EXPECT_EQ(resolve(ofPalette(newer, std::nullopt), at20), std::nullopt);
    EXPECT_EQ(resolve(ofPalette(std::nullopt, newer), at19), newer);
    EXPECT_EQ(resolve(ofPalette(newer, std::nullopt), at19), newer);
    EXPECT_EQ(resolve(ofPalette(newer, std::nullopt)), newer);
}

TEST(ConflictRules, DeletionsOfBothMachinesStay) {
    const auto listOf = [](const QList<Tombstone>& list) {
        return CloudValue(compressedValue(*encodedTombstones(list)));
    };
    const Tombstone first{numberedId(1), ReferenceTime{1.0}};
    const Tombstone second{numberedId(2), ReferenceTime{2.0}};
    const QString key = cloudKeys::tombstones;
    EXPECT_EQ(resolve({key, listOf({first}), listOf({second})}), listOf({second, first}));
    // Where theirs has all of ours, it stays to the byte.
    const CloudValue plain = *encodedTombstones({second, first});
    EXPECT_EQ(resolve({key, listOf({first}), plain}), plain);
    EXPECT_EQ(resolve({key, listOf({first}), CloudValue(QByteArray("?"))}), listOf({first}));
    EXPECT_EQ(resolve({key, listOf({first}), std::nullopt}), listOf({first}));
}

TEST(ConflictRules, OfASettingTheOneWrittenLaterStays) {
    const CloudValue ours = QStringLiteral("hex");
    const CloudValue theirs = QStringLiteral("cssRGB");
    const QString key = QStringLiteral("pref.colorFormat");
    EXPECT_EQ(resolve({key, ours, theirs, false, true}), ours);
    EXPECT_EQ(resolve({key, ours, theirs, false, false}), theirs);
}

TEST(ConflictRules, AtFirstContactTheSettingsOfTheCloudWin) {
    const CloudValue ours = true;
    const CloudValue theirs = false;
    EXPECT_EQ(resolve({QStringLiteral("pref.useLowercase"), ours, theirs, true, true}), theirs);
    EXPECT_EQ(resolve({cloudKeys::order, ours, theirs, true, true}), theirs);
}

} // namespace
} // namespace dropshade
