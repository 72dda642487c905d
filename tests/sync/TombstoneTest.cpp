// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "sync/Tombstone.h"

#include "support/QtPrinters.h"

#include <gtest/gtest.h>

namespace dropshade {
namespace {

const QUuid one(1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1);
const QUuid two(2, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1);

TEST(Tombstone, IsAnObjectOfAnIdAndAMoment) {
    EXPECT_EQ(
        encodedTombstones({{one, ReferenceTime{12.25}}}),
        QByteArray("[{\"id\":\"00000001-0000-0000-0000-000000000001\",\"deletedAt\":12.25}]"));
    EXPECT_EQ(encodedTombstones({}), QByteArray("[]"));
}

TEST(Tombstone, ComesBackWithEveryBit) {
    const QList<Tombstone> tombstones = {{one, ReferenceTime{789012345.678901}},
                                         {two, ReferenceTime{-0.1}}};
    EXPECT_EQ(decodedTombstones(*encodedTombstones(tombstones)), tombstones);
}

TEST(Tombstone, AListWithOneBadEntryIsUnreadable) {
    EXPECT_EQ(decodedTombstones("[{\"id\":\"x\",\"deletedAt\":1}]"), std::nullopt);
    EXPECT_EQ(decodedTombstones("[{\"deletedAt\":1}]"), std::nullopt);
    EXPECT_EQ(decodedTombstones("{}"), std::nullopt);
    EXPECT_EQ(decodedTombstones("[] []"), std::nullopt);
}

TEST(Tombstone, LivesFor90DaysLessThanASecond) {
    const ReferenceTime now{800'000'000.0};
    const Tombstone expired{one, ReferenceTime{now.seconds - 7'776'000.0}};
    const Tombstone living{two, ReferenceTime{now.seconds - 7'776'000.0 + 0.001}};
    EXPECT_EQ(livingTombstones({expired, living}, now), QList{living});
}

TEST(Tombstone, UnitesListsToEachIdOnceWithTheLaterMoment) {
    const QList<Tombstone> ours = {{one, ReferenceTime{5.0}}};
    const QList<Tombstone> theirs = {{two, ReferenceTime{1.0}}, {one, ReferenceTime{7.0}}};
    EXPECT_EQ(unitedTombstones(ours, theirs),
              (QList<Tombstone>{{one, ReferenceTime{7.0}}, {two, ReferenceTime{1.0}}}));
}

TEST(TombstoneDeathTest, ARepeatedIdEndsTheProcess) {
    EXPECT_DEATH(static_cast<void>(deletionMoments({{one, {}}, {one, {}}})),
                 "Duplicate values for key: '00000001-0000-0000-0000-000000000001'");
}

} // namespace
} // namespace dropshade
