// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/linux/replica/ReplicaRecord.h"

#include "support/QtPrinters.h"

#include <gtest/gtest.h>

#include <limits>

namespace dropshade {
namespace {

const QString key = QStringLiteral("palette.order");

void expectRoundTrip(const CloudValue& value) {
    const ReplicaRecord record{key, value, ReferenceTime{789012345.678901}};
    const auto read = ReplicaRecord::decoded(record.encoded());
    ASSERT_TRUE(read);
    EXPECT_EQ(read->key, key);
    EXPECT_EQ(read->value, value);
    EXPECT_EQ(read->writtenAt, record.writtenAt);
}

TEST(ReplicaRecord, EveryTypeComesBackExactly) {
    expectRoundTrip(true);
    expectRoundTrip(false);
    expectRoundTrip(std::numeric_limits<qint64>::min());
    expectRoundTrip(0.1 + 0.2);
    expectRoundTrip(std::numeric_limits<double>::infinity());
    expectRoundTrip(-std::numeric_limits<double>::denorm_min());
    expectRoundTrip(QStringLiteral(u"a\nb é 🎨"));
    expectRoundTrip(QString());
    expectRoundTrip(QByteArray("\n\0\xff", 3));
    expectRoundTrip(QByteArray());
    expectRoundTrip(QStringList{QString(), QStringLiteral("a\n\"")});
    expectRoundTrip(QStringList());
}

TEST(ReplicaRecord, IsALineToReadAndTheBytesBehindIt) {
    const QByteArray bytes = ReplicaRecord{key, QByteArray("[1]"), ReferenceTime{1.5}}.encoded();
    EXPECT_TRUE(bytes.startsWith("{\"dropshade\":1,\"key\":\"palette.order\",\"type\":\"data\","
                                 "\"writtenAt\":1.5,\"sum\":\""));
    EXPECT_TRUE(bytes.endsWith("\"}\n[1]"));
}

TEST(ReplicaRecord, OneCutOffAnywhereIsUnreadable) {
    const QByteArray bytes = ReplicaRecord{key, QByteArray(300, 'x'), {}}.encoded();
    for (qsizetype size = 0; size < bytes.size(); ++size)
        EXPECT_FALSE(ReplicaRecord::decoded(bytes.left(size))) << size;
    EXPECT_FALSE(ReplicaRecord::decoded(bytes + 'x'));
}

TEST(ReplicaRecord, OneMixedOfTwoIsUnreadable) {
    const QByteArray old = ReplicaRecord{key, QByteArray(300, 'a'), {}}.encoded();
    QByteArray mixed = ReplicaRecord{key, QByteArray(300, 'b'), {}}.encoded();
    mixed.replace(200, 100, old.mid(200, 100));
    EXPECT_FALSE(ReplicaRecord::decoded(mixed));
    QByteArray zeros = old;
    zeros.replace(250, 64, QByteArray(64, '\0'));
    EXPECT_FALSE(ReplicaRecord::decoded(zeros));
}

TEST(ReplicaRecord, AnotherKeyOrTypeDoesNotFitTheSum) {
    const QByteArray bytes = ReplicaRecord{key, QStringLiteral("1"), {}}.encoded();
    EXPECT_FALSE(ReplicaRecord::decoded(QByteArray(bytes).replace("order", "tombs")));
    EXPECT_FALSE(ReplicaRecord::decoded(QByteArray(bytes).replace("string", "integer")));
}

TEST(ReplicaRecord, OneOfALaterFormOrTooLongIsUnreadable) {
    const QByteArray bytes = ReplicaRecord{key, true, {}}.encoded();
    EXPECT_FALSE(
        ReplicaRecord::decoded(QByteArray(bytes).replace("\"dropshade\":1", "\"dropshade\":2")));
    const QByteArray large(ReplicaRecord::mostBytes, 'x');
    EXPECT_FALSE(ReplicaRecord::decoded(ReplicaRecord{key, large, {}}.encoded()));
}

} // namespace
} // namespace dropshade
