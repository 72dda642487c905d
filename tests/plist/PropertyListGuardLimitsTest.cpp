// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "plist/PropertyListGuard.h"

#include "support/BinaryPropertyLists.h"
#include "support/Cost.h"

#include <gtest/gtest.h>

#include <QtEndian>

namespace dropshade {
namespace {

/// An array of nothing but itself, as often as fits.
QByteArray arrayOfItself(qsizetype size) {
    QByteArray array("\xAF\x12\0\0\0\0", 6);
    qToBigEndian(quint32(size / 3), array.data() + 2);
    return binaryPropertyList({array + QByteArray(size / 3 * 3, '\0')});
}

TEST(PropertyListGuardLimits, AListThatHoldsItselfOverAndOverIsRefusedAtLittleCost) {
    for (const qsizetype size : {qsizetype(200000), qsizetype(2000000)}) {
        const QByteArray bytes = arrayOfItself(size);
        bool isReasonable = true;
        const Cost cost = costOf([&] { isReasonable = isReasonablePropertyList(bytes); });
        EXPECT_FALSE(isReasonable);
        EXPECT_LE(cost.bytes, mostBytesFor(bytes.size())) << size;
        EXPECT_LT(cost.seconds, mostSecondsFor(bytes.size())) << size;
    }
}

} // namespace
} // namespace dropshade
