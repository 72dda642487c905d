// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "plist/PropertyList.h"

#include "support/BinaryPropertyLists.h"
#include "support/Seed.h"

#include <gtest/gtest.h>

#include <QFile>

#include <random>

namespace dropshade {
namespace {

QByteArray fixture(const std::string& form) {
    QFile file(QStringLiteral(FIXTURES "/preferences-%1.plist").arg(QString::fromStdString(form)));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
}

/// The same entries in both forms, written by another program.
class PropertyListForms : public testing::TestWithParam<const char*> {};
INSTANTIATE_TEST_SUITE_P(PropertyList, PropertyListForms, testing::Values("xml", "binary"),
                         [](const auto& form) { return std::string(form.param); });

TEST_P(PropertyListForms, GiveEachEntryWithItsType) {
    const auto entries = propertyListDictionary(fixture(GetParam()));
    ASSERT_TRUE(entries);
    const std::map<QString, DefaultsValue> expected = {
        {QStringLiteral("colorFormat"), QStringLiteral("cssHSL")},
        {QStringLiteral("decimalPlaces"), qint64(4)},
        {QStringLiteral("negative"), qint64(-3)},
        {QStringLiteral("big"), qint64(9007199254740993)},
        {QStringLiteral("useHashPrefix"), false},
        {QStringLiteral("useLowercase"), true},
        {QStringLiteral("real"), 0.1},
        {QStringLiteral("unicode"), QStringLiteral(u"Größe 🎨")},
        {QStringLiteral("empty"), QString()},
        {QStringLiteral("pinnedColors"), QByteArray("[\0\xff]", 4)},
        {QStringLiteral("emptyData"), QByteArray("")},
        {QStringLiteral("list"), QStringList{QStringLiteral("A"), QStringLiteral(u"ä")}},
        {QStringLiteral("emptyList"), QStringList()},
    };
    EXPECT_EQ(*entries, expected);
}

TEST_P(PropertyListForms, SurviveEveryCut) {
    const QByteArray whole = fixture(GetParam());
    for (qsizetype length = 0; length < whole.size(); ++length)
        static_cast<void>(propertyListDictionary(whole.first(length)));
}

TEST_P(PropertyListForms, SurviveRandomDamage) {
    const QByteArray whole = fixture(GetParam());
    const auto seed = testSeed();
    SCOPED_TRACE(seedTrace(seed));
    std::mt19937_64 random(seed);
    for (int round = 0; round < 20000; ++round) {
        QByteArray damaged = whole;
        for (unsigned count = 1 + random() % 3; count > 0; --count)
            damaged[qsizetype(random() % unsigned(whole.size()))] = static_cast<char>(random());
        static_cast<void>(propertyListDictionary(damaged));
    }
}

TEST(PropertyList, GivesNothingForJunk) {
    for (const char* junk : {"", "bplist00", "plist", "<", "<plist>", "<plist></plist>",
                             "<?xml version=\"1.0\"?><plist version=\"1.0\"><array/></plist>",
                             "<plist><string>a</string></plist>", "{\"a\":1}", "\xFF\xFE"})
        EXPECT_FALSE(propertyListDictionary(junk)) << junk;
    EXPECT_FALSE(propertyListDictionary(binaryArrayChain(3, 1)));
}

TEST(PropertyList, GivesNothingForAListThatWouldExhaustTheReader) {
    const QByteArray head("<plist version=\"1.0\"><dict><key>a</key>");
    EXPECT_FALSE(propertyListDictionary(head + QByteArray("<array>").repeated(1000000)));
    EXPECT_FALSE(propertyListDictionary(binaryArrayChain(100000, 1)));
    EXPECT_FALSE(propertyListDictionary(binaryArrayChain(60, 2)));
}

TEST(PropertyList, ReadsAnEmptyDictionary) {
    const auto entries = propertyListDictionary("<plist version=\"1.0\"><dict/></plist>");
    ASSERT_TRUE(entries);
    EXPECT_TRUE(entries->empty());
}

} // namespace
} // namespace dropshade
