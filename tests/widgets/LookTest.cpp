// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "widgets/Look.h"

#include "support/FakeAppearance.h"

#include <gtest/gtest.h>

namespace dropshade {
namespace {

class LookTest : public testing::Test {
protected:
    FakeAppearance m_appearance;
    Look m_look{m_appearance};
    int m_changes = 0;

    void SetUp() override {
        QObject::connect(&m_look, &Look::didChange, [this] { ++m_changes; });
    }
};

TEST_F(LookTest, FollowsTheDesktopsSchemeLive) {
    EXPECT_EQ(m_look.theme().scheme, Theme::Scheme::Light);
    m_appearance.setDark(true);
    EXPECT_EQ(m_changes, 1);
    EXPECT_EQ(m_look.theme().scheme, Theme::Scheme::Dark);
}

TEST_F(LookTest, FollowsTheDesktopsContrastLive) {
    m_appearance.setHighContrast(true);
    EXPECT_EQ(m_changes, 1);
    EXPECT_EQ(m_look.theme().lineEdge, m_look.theme().lineControl);
}

TEST_F(LookTest, NothingMovesWhereTheUserWantsStillness) {
    using namespace std::chrono_literals;
    EXPECT_EQ(m_look.duration(140ms), 140ms);
    m_appearance.setReducedMotion(true);
    EXPECT_EQ(m_look.duration(140ms), 0ms);
}

} // namespace
} // namespace dropshade
