// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/linux/PortalScreenSampler.h"

#include "color/ColorConversions.h"
#include "support/FakePortal.h"

#include <QTest>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace dropshade {
namespace {

constexpr int patienceMilliseconds = 5000;

/// On the session bus of a virtual desktop; without one there is nothing to test.
class PortalScreenSamplerTest : public testing::Test {
protected:
    void SetUp() override {
        if (!FakePortal::canBe())
            GTEST_SKIP() << "needs a session bus";
        m_portal = std::make_unique<FakePortal>();
    }
    void sample() {
        m_sampler.sample(nullptr, [this](const std::optional<SRGBColor>& color) {
            ++m_completions;
            m_color = color;
        });
    }
    void sampleUntilAsked() {
        sample();
        ASSERT_TRUE(QTest::qWaitFor([this] { return m_portal->isAsked(); }, patienceMilliseconds));
    }
    void expectCompletion() {
        EXPECT_TRUE(QTest::qWaitFor([this] { return m_completions == 1; }, patienceMilliseconds));
    }
    void expectNothing() {
        expectCompletion();
        EXPECT_EQ(m_color, std::nullopt);
    }

    std::unique_ptr<FakePortal> m_portal;
    PortalScreenSampler m_sampler;
    int m_completions = 0;
    std::optional<SRGBColor> m_color;
};

TEST_F(PortalScreenSamplerTest, EveryByteComesBackExactlyHoweverThePortalDividedIt) {
    for (const double divisor : {255.0, 256.0}) {
        // Of a division by 256 the bytes that survive rounding are those of the lower half.
        const int end = divisor > 255 ? 128 : 256;
        for (int byte = 0; byte < end; byte += 5) {
            m_completions = 0;
            sampleUntilAsked();
            m_portal->pick({float(byte / divisor), byte / divisor, 1.0});
            expectCompletion();
            ASSERT_TRUE(m_color);
            EXPECT_EQ(rgba255(*m_color).red, byte);
            EXPECT_EQ(m_color->green(), byte / 255.0);
        }
    }
}

TEST_F(PortalScreenSamplerTest, EveryCodeButZeroIsAQuietNothing) {
    for (const uint code : {1U, 2U, 77U}) {
        m_completions = 0;
        sampleUntilAsked();
        m_portal->answer(code, {});
        expectNothing();
    }
}

TEST_F(PortalScreenSamplerTest, AnAnswerThatIsNoColorIsNothing) {
    const double notANumber = std::numeric_limits<double>::quiet_NaN();
    for (const QVariant& value : {QVariant(), QVariant(QStringLiteral("#fff")), QVariant(1.0),
                                  QVariant(QVariantList{1.0, 1.0, 1.0}),
                                  QVariant::fromValue(PortalColor{notANumber, 0, 0})}) {
        m_completions = 0;
        sampleUntilAsked();
        m_portal->answer(0, value.isValid() ? QVariantMap{{QStringLiteral("color"), value}}
                                            : QVariantMap());
        expectNothing();
    }
}

TEST_F(PortalScreenSamplerTest, APortalThatChoosesThePathItselfIsHeardToo) {
    m_portal->chooseOwnPaths();
    sampleUntilAsked();
    QTest::qWait(50); // The path comes with the reply, and the reply is on its way.
    m_portal->pick({1, 1, 1});
    expectCompletion();
    EXPECT_TRUE(m_color);
}

TEST_F(PortalScreenSamplerTest, APortalThatRefusesOrIsMissingIsNothing) {
    m_portal->refuseCalls();
    sample();
    expectNothing();
    m_completions = 0;
    m_portal.reset();
    sample();
    expectNothing();
}

TEST_F(PortalScreenSamplerTest, APortalThatEndsWhileTheUserPicksIsNothing) {
    sampleUntilAsked();
    m_portal->vanish();
    expectNothing();
}

} // namespace
} // namespace dropshade
