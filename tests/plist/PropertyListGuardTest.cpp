// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "plist/PropertyListGuard.h"

#include "support/BinaryPropertyLists.h"
#include "support/Seed.h"

#include <gtest/gtest.h>

#include <QFile>

#include <random>

namespace dropshade {
namespace {

QByteArray fixture(const char* name) {
    QFile file(QStringLiteral(FIXTURES "/%1").arg(QString::fromLatin1(name)));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
}

TEST(PropertyListGuard, LetsOrdinaryListsPass) {
    EXPECT_TRUE(isReasonablePropertyList(fixture("preferences-xml.plist")));
    EXPECT_TRUE(isReasonablePropertyList(fixture("preferences-binary.plist")));
    EXPECT_TRUE(isReasonablePropertyList(binaryArrayChain(500, 1)));
    EXPECT_TRUE(isReasonablePropertyList(binaryArrayChain(10, 3)));
}

TEST(PropertyListGuard, TellsTheBinaryForm) {
    EXPECT_TRUE(isBinaryPropertyList(fixture("preferences-binary.plist")));
    EXPECT_FALSE(isBinaryPropertyList(fixture("preferences-xml.plist")));
    EXPECT_FALSE(isBinaryPropertyList("bplist0"));
}

TEST(PropertyListGuard, StopsListsThatNestTooDeep) {
    EXPECT_FALSE(isReasonablePropertyList(binaryArrayChain(600, 1)));
    EXPECT_FALSE(isReasonablePropertyList(QByteArray("<array>").repeated(100000)));
    EXPECT_FALSE(isReasonablePropertyList(
        QByteArray("<array><!-- </array> --><dict><!-- </dict> -->").repeated(100000)));
}

TEST(PropertyListGuard, StopsListsThatMultiplyTheirParts) {
    EXPECT_FALSE(isReasonablePropertyList(binaryArrayChain(40, 2)));
    EXPECT_FALSE(isReasonablePropertyList(binaryArrayChain(200, 14)));
    const QByteArray manyTimes =
        QByteArray("\xAF\x12\0\1\0\0", 6) + QByteArray("\0\0\1", 3).repeated(65536);
    const QByteArray large = QByteArray("\x4F\x12\0\1\0\0", 6) + QByteArray(65536, 'x');
    EXPECT_FALSE(isReasonablePropertyList(binaryPropertyList({manyTimes, large})));
}

TEST(PropertyListGuard, StopsListsThatContainThemselves) {
    EXPECT_FALSE(isReasonablePropertyList(binaryPropertyList({QByteArray("\xA1\0\0\0", 4)})));
}

TEST(PropertyListGuard, StopsReferencesOutOfTheFile) {
    EXPECT_FALSE(isReasonablePropertyList(binaryPropertyList({QByteArray("\xA1\0\0\x07", 4)})));
    EXPECT_FALSE(isReasonablePropertyList(binaryPropertyList({QByteArray("\xAF\x13\xFF")})));
    EXPECT_FALSE(isReasonablePropertyList(
        binaryPropertyList({QByteArray("\xAF\x13\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF")})));
    EXPECT_FALSE(isReasonablePropertyList("bplist00"));
    EXPECT_FALSE(isReasonablePropertyList(QByteArray("bplist00") + QByteArray(32, '\xFF')));
}

TEST(PropertyListGuard, StopsKeysThatAreNoProperStrings) {
    const auto dictionary = [](const QByteArray& key) {
        return binaryPropertyList({QByteArray("\xD1\0\0\1\0\0\2", 7), key, QByteArray("\x09")});
    };
    EXPECT_TRUE(isReasonablePropertyList(dictionary("\x51"
                                                    "a")));
    EXPECT_TRUE(isReasonablePropertyList(dictionary(QByteArray("\x61\0a", 3))));
    EXPECT_FALSE(isReasonablePropertyList(dictionary(QByteArray("\x52"
                                                                "a\0",
                                                                3))));
    EXPECT_FALSE(isReasonablePropertyList(dictionary(QByteArray("\x62\0a\0\0", 5))));
    EXPECT_FALSE(isReasonablePropertyList(dictionary("\x10\x05")));
    EXPECT_FALSE(isReasonablePropertyList(dictionary("\x5F\x13\x7F\xFF\xFF\xFF")));
    EXPECT_FALSE(isReasonablePropertyList(QByteArray("<plist><dict><key>a\0</key>", 27)));
}

TEST(PropertyListGuard, SurvivesEveryCutAndRandomDamage) {
    const QByteArray whole = fixture("preferences-binary.plist");
    for (qsizetype length = 0; length < whole.size(); ++length)
        static_cast<void>(isReasonablePropertyList(whole.first(length)));
    const auto seed = testSeed();
    SCOPED_TRACE(seedTrace(seed));
    std::mt19937_64 random(seed);
    for (int round = 0; round < 20000; ++round) {
        QByteArray damaged = whole;
        for (unsigned count = 1 + random() % 4; count > 0; --count)
            damaged[qsizetype(random() % unsigned(whole.size()))] = static_cast<char>(random());
        static_cast<void>(isReasonablePropertyList(damaged));
    }
}

} // namespace
} // namespace dropshade
