// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "sync/SizeBudget.h"

#include <gtest/gtest.h>

namespace dropshade {
namespace {

TEST(SizeBudget, EstimatesEachType) {
    EXPECT_EQ(estimatedSize(true), 8);
    EXPECT_EQ(estimatedSize(qint64(5)), 8);
    EXPECT_EQ(estimatedSize(2.5), 8);
    EXPECT_EQ(estimatedSize(QByteArray(77, 'x')), 77);
    EXPECT_EQ(estimatedSize(QStringLiteral(u"aé色🎨")), 1 + 2 + 3 + 4);
    EXPECT_EQ(estimatedSize(QStringList{QStringLiteral("ab"), QStringLiteral(u"é")}), 4);
}

TEST(SizeBudget, IsExceededByTheFirstByteAbove900000) {
    std::map<QString, CloudValue> values = {
        {QStringLiteral("a"), QByteArray(899'992, 'x')},
        {QStringLiteral("a key that is long and doesn't count"), qint64(1)},
    };
    EXPECT_FALSE(exceedsSizeBudget(values));
    values[QStringLiteral("b")] = QStringLiteral("x");
    EXPECT_TRUE(exceedsSizeBudget(values));
    EXPECT_FALSE(exceedsSizeBudget({}));
}

} // namespace
} // namespace dropshade
