// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "app/RecentColor.h"

#include "app/SettingsReaders.h"
#include "support/MemoryDefaults.h"
#include "support/QtPrinters.h"
#include "support/Seed.h"

#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>

#include <limits>
#include <random>

namespace dropshade {
namespace {

class RecentColors : public testing::Test {
protected:
    void record(int count) {
        for (int index = 0; index < count; ++index)
            recordRecentColor(m_defaults, SRGBColor((index % 256) / 255.0, 0.0, 0.0));
    }
    [[nodiscard]] QByteArray stored() const {
        return m_defaults.read<QByteArray>(keys::recentColors).value_or("unset");
    }

    MemoryDefaults m_defaults;
};

const QUuid someId(QStringLiteral("0a1b2c3d-4e5f-6071-8293-a4b5c6d7e8f9"));

TEST_F(RecentColors, StartEmpty) {
    EXPECT_TRUE(loadRecentColors(m_defaults).isEmpty());
}

TEST_F(RecentColors, HaveTheNewestInFront) {
    recordRecentColor(m_defaults, SRGBColor(1.0, 0.0, 0.0));
    recordRecentColor(m_defaults, SRGBColor(0.0, 1.0, 0.0, 0.5));
    const auto colors = loadRecentColors(m_defaults);
    ASSERT_EQ(colors.size(), 2);
    EXPECT_EQ(colors.at(0).color(), SRGBColor(0.0, 1.0, 0.0, 0.5));
    EXPECT_EQ(colors.at(1).color(), SRGBColor(1.0, 0.0, 0.0));
}

TEST_F(RecentColors, DropTheOldestBeyondTheLimit) {
    record(9);
    const auto colors = loadRecentColors(m_defaults);
    ASSERT_EQ(colors.size(), 8);
    EXPECT_EQ(colors.last().red, 1 / 255.0);
}

TEST_F(RecentColors, HaveTwoRowsWithDifferentIdsForOneColorSampledTwice) {
    recordRecentColor(m_defaults, SRGBColor(1.0, 0.0, 0.0));
    recordRecentColor(m_defaults, SRGBColor(1.0, 0.0, 0.0));
    const auto colors = loadRecentColors(m_defaults);
    ASSERT_EQ(colors.size(), 2);
    EXPECT_NE(colors.at(0).id, colors.at(1).id);
    EXPECT_EQ(colors.at(0).color(), colors.at(1).color());
}

TEST_F(RecentColors, KeepEveryBitOfTheirComponents) {
    const auto seed = testSeed();
    SCOPED_TRACE(seedTrace(seed));
    std::mt19937_64 random(seed);
    std::uniform_real_distribution<double> fraction(0.0, 1.0);
    setRecentColorsLimit(m_defaults, 50);
    for (int round = 0; round < 200; ++round) {
        const SRGBColor color(fraction(random), fraction(random), fraction(random),
                              fraction(random));
        recordRecentColor(m_defaults, color);
        EXPECT_EQ(loadRecentColors(m_defaults).first().color(), color);
    }
}

TEST_F(RecentColors, AreStoredWithTheseKeysInThisOrder) {
    saveRecentColors(m_defaults, {{someId, 0.5, 0.0, 1.0, 0.25}});
    EXPECT_EQ(stored(), R"([{"id":"0A1B2C3D-4E5F-6071-8293-A4B5C6D7E8F9",)"
                        R"("red":0.5,"green":0,"blue":1,"alpha":0.25}])");
}

TEST_F(RecentColors, ReadAsNoneWithoutAnyKeyOrWithJunkWhichStays) {
    for (const char* key : {"id", "red", "green", "blue", "alpha"}) {
        saveRecentColors(m_defaults, {{someId, 0.5, 0.0, 1.0, 0.25}});
        QJsonObject object = QJsonDocument::fromJson(stored()).array().at(0).toObject();
        object.remove(QLatin1String(key));
        m_defaults.setValue(keys::recentColors, QJsonDocument(QJsonArray{object}).toJson());
        EXPECT_TRUE(loadRecentColors(m_defaults).isEmpty()) << key;
    }
    for (const char* junk : {"", "{}", "null", "[1]", "[{}]", "\xff"}) {
        m_defaults.setValue(keys::recentColors, QByteArray(junk));
        EXPECT_TRUE(loadRecentColors(m_defaults).isEmpty()) << junk;
        EXPECT_EQ(stored(), junk);
    }
    m_defaults.setValue(keys::recentColors, QStringLiteral("[]"));
    EXPECT_TRUE(loadRecentColors(m_defaults).isEmpty());
}

TEST_F(RecentColors, LeaveTheStoreAsItWasWhereTheyHaveNoForm) {
    record(1);
    const QByteArray before = stored();
    saveRecentColors(m_defaults, {{someId, std::numeric_limits<double>::infinity(), 0, 0, 1}});
    EXPECT_EQ(stored(), before);
}

TEST_F(RecentColors, AreCutAtOnceByALowerLimitAndDoNotComeBack) {
    record(8);
    setRecentColorsLimit(m_defaults, 3);
    EXPECT_EQ(loadRecentColors(m_defaults).size(), 3);
    EXPECT_EQ(loadRecentColors(m_defaults).first().red, 7 / 255.0);
    setRecentColorsLimit(m_defaults, 8);
    EXPECT_EQ(loadRecentColors(m_defaults).size(), 3);
}

TEST_F(RecentColors, AreNoneWithALimitOfZero) {
    record(3);
    setRecentColorsLimit(m_defaults, 0);
    EXPECT_EQ(stored(), "[]");
    record(1);
    EXPECT_TRUE(loadRecentColors(m_defaults).isEmpty());
}

TEST_F(RecentColors, HaveALimitThatIsPinnedAsItIsStored) {
    setRecentColorsLimit(m_defaults, 80);
    EXPECT_EQ(m_defaults.read<qint64>(keys::recentColorsLimit), 50);
    setRecentColorsLimit(m_defaults, -3);
    EXPECT_EQ(m_defaults.read<qint64>(keys::recentColorsLimit), 0);
}

TEST_F(RecentColors, NeverHaveTheSameIdTwice) {
    setRecentColorsLimit(m_defaults, 50);
    record(50);
    QSet<QUuid> ids;
    for (const RecentColor& color : loadRecentColors(m_defaults))
        ids.insert(color.id);
    EXPECT_EQ(ids.size(), 50);
}

} // namespace
} // namespace dropshade
