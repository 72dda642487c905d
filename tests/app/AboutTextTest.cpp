// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "app/AboutText.h"

#include "app/SettingsReaders.h"
#include "support/MemoryDefaults.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

namespace dropshade {
namespace {

class LifetimeLineTest : public testing::Test {
protected:
    QString lineAfter(const DefaultsValue& count) {
        m_defaults.setValue(keys::totalChecksCount, count);
        return aboutText::lifetimeLine(m_defaults);
    }

    MemoryDefaults m_defaults;
};

TEST_F(LifetimeLineTest, NoCopiesYetAreZeroColors) {
    EXPECT_EQ(aboutText::lifetimeLine(m_defaults), QStringLiteral("You've copied 0 colors."));
    EXPECT_EQ(lineAfter(qint64(0)), QStringLiteral("You've copied 0 colors."));
}

TEST_F(LifetimeLineTest, OneCopyIsOneColor) {
    EXPECT_EQ(lineAfter(qint64(1)), QStringLiteral("You've copied 1 color."));
}

TEST_F(LifetimeLineTest, EveryOtherNumberStandsInPlainDigits) {
    EXPECT_EQ(lineAfter(qint64(2)), QStringLiteral("You've copied 2 colors."));
    EXPECT_EQ(lineAfter(qint64(1284)), QStringLiteral("You've copied 1284 colors."));
    EXPECT_EQ(lineAfter(qint64(-1)), QStringLiteral("You've copied -1 colors."));
    EXPECT_EQ(lineAfter(qint64(5000000000)), QStringLiteral("You've copied 5000000000 colors."));
}

TEST_F(LifetimeLineTest, WhatIsNoIntegerCountsAsNone) {
    EXPECT_EQ(lineAfter(QStringLiteral("many")), QStringLiteral("You've copied 0 colors."));
}

TEST(AboutTextTest, SaysTheVersionAndWhatTheProgramIs) {
    EXPECT_EQ(aboutText::version(QStringLiteral("1.2.3")), QStringLiteral("Version 1.2.3"));
    EXPECT_EQ(aboutText::description(),
              QStringLiteral("A minimal color picker for your menu bar.\n"
                             "No accounts. No subscriptions. No telemetry."));
}

TEST(AboutTextTest, TheWebsiteIsASafeAddress) {
    EXPECT_TRUE(aboutText::website().isValid());
    EXPECT_EQ(aboutText::website().scheme(), QStringLiteral("https"));
}

} // namespace
} // namespace dropshade
