// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "sync/PaletteMerge.h"

#include <gmock/gmock.h>

namespace dropshade {
namespace {

QUuid id(int number) {
    return QUuid(uint(number), 0, 0, 0, 0, 0, 0, 0, 0, 0, 1);
}

QList<QUuid> ids(std::initializer_list<int> numbers) {
    QList<QUuid> list;
    for (const int number : numbers)
        list.append(id(number));
    return list;
}

PaletteSides localOnes(std::initializer_list<int> numbers) {
    PaletteSides sides;
    for (const int number : numbers)
        sides.local.append({id(number), ReferenceTime{10.0}});
    return sides;
}

std::vector<int> order(const PaletteSides& sides) {
    std::vector<int> numbers;
    for (const MergedPalette& palette : mergedPalettes(sides))
        numbers.push_back(int(palette.stamp.id.data1));
    return numbers;
}

TEST(PaletteMerge, KeepsWhatOneSideHasAlone) {
    PaletteSides sides = localOnes({2, 1});
    sides.remote.insert(id(3), ReferenceTime{1.0});
    EXPECT_THAT(order(sides), testing::ElementsAre(2, 1, 3));
}

TEST(PaletteMerge, TakesTheLaterCopyAndOnEqualMomentsTheLocalOne) {
    PaletteSides sides = localOnes({1, 2, 3});
    sides.remote = {
        {id(1), ReferenceTime{10.5}}, {id(2), ReferenceTime{10.0}}, {id(3), ReferenceTime{9.5}}};
    const auto merged = mergedPalettes(sides);
    EXPECT_EQ(merged.at(0).side, PaletteSide::Remote);
    EXPECT_EQ(merged.at(0).stamp.lastModified, ReferenceTime{10.5});
    EXPECT_EQ(merged.at(1).side, PaletteSide::Local);
    EXPECT_EQ(merged.at(2).side, PaletteSide::Local);
}

TEST(PaletteMerge, ATieGoesToTheDeletionAndALaterEditSurvives) {
    PaletteSides sides = localOnes({1, 2, 3});
    sides.remote = {{id(3), ReferenceTime{30.0}}};
    sides.deletions = {{id(1), ReferenceTime{10.0}},
                       {id(2), ReferenceTime{9.75}},
                       {id(3), ReferenceTime{29.0}},
                       {id(4), ReferenceTime{50.0}}};
    EXPECT_THAT(order(sides), testing::ElementsAre(2, 3));
}

TEST(PaletteMerge, TakesARemoteOrderThatCoversEveryPalette) {
    PaletteSides sides = localOnes({1, 2, 3});
    sides.remoteOrder = ids({3, 1, 2});
    sides.remoteOrderMoment = 1.0;
    EXPECT_THAT(order(sides), testing::ElementsAre(3, 1, 2));
}

TEST(PaletteMerge, ARemoteOrderOfFiveForSixGivesWayToTheLocalOne) {
    PaletteSides sides = localOnes({1, 2, 3, 4, 5, 6});
    sides.remoteOrder = ids({5, 4, 3, 2, 1});
    sides.remoteOrderMoment = 1.0;
    EXPECT_THAT(order(sides), testing::ElementsAre(1, 2, 3, 4, 5, 6));
}

TEST(PaletteMerge, ARemoteOrderOfSevenAppliesToTheFiveThatSurvive) {
    PaletteSides sides = localOnes({1, 2, 3, 4, 5});
    sides.remoteOrder = ids({5, 9, 4, 3, 8, 2, 1});
    sides.remoteOrderMoment = 1.0;
    EXPECT_THAT(order(sides), testing::ElementsAre(5, 4, 3, 2, 1));
}

TEST(PaletteMerge, AnUndatedRemoteOrderCountsForNothing) {
    PaletteSides sides = localOnes({1, 2});
    sides.remoteOrder = ids({2, 1});
    EXPECT_THAT(order(sides), testing::ElementsAre(1, 2));
}

TEST(PaletteMerge, AnIdTwiceInTheRemoteOrderCoversNoOther) {
    PaletteSides sides = localOnes({1, 2});
    sides.remoteOrder = ids({2, 2});
    sides.remoteOrderMoment = 1.0;
    EXPECT_THAT(order(sides), testing::ElementsAre(1, 2));
    sides.remoteOrder = ids({2, 2, 1});
    EXPECT_THAT(order(sides), testing::ElementsAre(2, 1));
}

TEST(PaletteMerge, NothingOnAnySideMergesToNothing) {
    EXPECT_TRUE(mergedPalettes({}).isEmpty());
}

} // namespace
} // namespace dropshade
