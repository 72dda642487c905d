// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "app/SyncStatusLabel.h"

#include "sync/SyncFixture.h"

#include <limits>

namespace dropshade {
namespace {

using Sign = SyncStatusLabel::Sign;

TEST(RelativeTimeTest, NamesTheLargestUnitThatHasPassed) {
    const auto ago = [](double seconds) {
        return relativeTime(ReferenceTime{1e9 - seconds}, ReferenceTime{1e9});
    };
    EXPECT_EQ(ago(0.0), QStringLiteral("now"));
    EXPECT_EQ(ago(0.9), QStringLiteral("now"));
    EXPECT_EQ(ago(59.9), QStringLiteral("59 seconds ago"));
    EXPECT_EQ(ago(120.0), QStringLiteral("2 minutes ago"));
    EXPECT_EQ(ago(3599.0), QStringLiteral("59 minutes ago"));
    EXPECT_EQ(ago(7200.0), QStringLiteral("2 hours ago"));
    EXPECT_EQ(ago(86400.0), QStringLiteral("yesterday"));
    EXPECT_EQ(ago(2 * 86400.0), QStringLiteral("2 days ago"));
    EXPECT_EQ(ago(7 * 86400.0), QStringLiteral("last week"));
    EXPECT_EQ(ago(21 * 86400.0), QStringLiteral("3 weeks ago"));
    EXPECT_EQ(ago(31 * 86400.0), QStringLiteral("last month"));
    EXPECT_EQ(ago(95 * 86400.0), QStringLiteral("3 months ago"));
    EXPECT_EQ(ago(366 * 86400.0), QStringLiteral("last year"));
    EXPECT_EQ(ago(800 * 86400.0), QStringLiteral("2 years ago"));
}

TEST(RelativeTimeTest, WhatLiesAheadIsNow) {
    EXPECT_EQ(relativeTime(ReferenceTime{2e9}, ReferenceTime{1e9}), QStringLiteral("now"));
}

TEST(RelativeTimeTest, NoMomentIsTooFarBack) {
    EXPECT_EQ(relativeTime(ReferenceTime{std::numeric_limits<double>::lowest()}, ReferenceTime{}),
              QStringLiteral("1000 years ago"));
}

class SyncStatusLabelTest : public SyncFixture {
protected:
    [[nodiscard]] SyncStatusLabel label() {
        return SyncStatusLabel::of(engine(), scheduler().now());
    }
};

TEST_F(SyncStatusLabelTest, AnEngineThatIsOffSaysNothing) {
    EXPECT_EQ(label(), SyncStatusLabel());
}

TEST_F(SyncStatusLabelTest, AnIdleEngineSaysWhenItLastSynced) {
    engine().start();
    scheduler().setNow(ReferenceTime{start + 120.0});
    EXPECT_EQ(label().words, QStringLiteral("Last synced: 2 minutes ago"));
    EXPECT_EQ(label().sign, Sign::None);
    engine().stop();
    EXPECT_EQ(label(), SyncStatusLabel()) << "though the date stays";
}

TEST_F(SyncStatusLabelTest, TroubleIsSaidInItsOwnWords) {
    engine().start();
    m_cloud.setTrouble(QStringLiteral("The password is wrong."));
    EXPECT_EQ(label(), (SyncStatusLabel{Sign::Error, QStringLiteral("The password is wrong."),
                                        std::nullopt}));
}

TEST_F(SyncStatusLabelTest, TheSizeWarningComesBeforeEverythingElse) {
    engine().start();
    m_cloud.values[QStringLiteral("palette.x")] = QByteArray(900001, 'x');
    defaults().setValue(keys::useLowercase, true);
    scheduler().advance(1000);
    m_cloud.setTrouble(QStringLiteral("The password is wrong."));
    EXPECT_EQ(label().sign, Sign::Warning);
    EXPECT_EQ(label().words, QStringLiteral("iCloud sync is approaching its size limit. Consider "
                                            "trimming unused palettes."));
}

} // namespace
} // namespace dropshade
