// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/ScreenSampler.h"

#include "platform/linux/PortalScreenSampler.h"
#include "platform/linux/X11ScreenSampler.h"
#include "support/FakePortal.h"
#include "support/FakeScreenSampler.h"
#include "support/X11Hand.h"

#include <QTest>

#include <gtest/gtest.h>

#include <optional>

namespace dropshade {
namespace {

constexpr int patienceMilliseconds = 5000;

/// The user of the fake, who is quick.
struct FakeUser {
    static bool canTest() { return true; }
    void pick() { sampler.pick(SRGBColor(1.0, 0.0, 0.0)); }
    void cancel() { sampler.cancel(); }

    FakeScreenSampler sampler;
};

/// The user of the loupe, who waits for it.
struct X11User {
    static bool canTest() { return X11Hand::isThere(); }
    void pick() {
        QTest::qWait(settleMilliseconds);
        hand.click(XCB_BUTTON_INDEX_1);
    }
    void cancel() {
        QTest::qWait(settleMilliseconds);
        hand.escape();
    }

    /// The loupe has the keyboard as soon as no panel holds it.
    static constexpr int settleMilliseconds = 100;
    X11ScreenSampler sampler{[] { return Theme::of(Theme::Scheme::Light); }};
    X11Hand hand;
};

/// The user of a desktop that lets programs ask for a colour.
struct PortalUser {
    static bool canTest() { return FakePortal::canBe(); }
    void pick() {
        waitUntilAsked();
        portal.pick({1.0, 0.0, 0.0});
    }
    void cancel() {
        waitUntilAsked();
        portal.answer(1, {});
    }
    void waitUntilAsked() {
        EXPECT_TRUE(QTest::qWaitFor([this] { return portal.isAsked(); }, patienceMilliseconds));
    }

    FakePortal portal;
    PortalScreenSampler sampler;
};

template <typename User>
class ScreenSamplerContract : public testing::Test {
protected:
    struct Outcome {
        int completions = 0;
        std::optional<SRGBColor> color;
    };

    void SetUp() override {
        if (!User::canTest())
            GTEST_SKIP() << "needs an X server or a session bus";
    }

    void sampleInto(Outcome& outcome) {
        m_user.sampler.sample([](const SRGBColor&) { return QStringLiteral("#000000"); },
                              [&outcome](const std::optional<SRGBColor>& color) {
                                  ++outcome.completions;
                                  outcome.color = color;
                              });
    }

    static bool completes(const Outcome& outcome) {
        return QTest::qWaitFor([&outcome] { return outcome.completions == 1; },
                               patienceMilliseconds);
    }

    User m_user;
};

struct UserNames {
    template <typename User>
    static std::string GetName(int) {
        if constexpr (std::is_same_v<User, FakeUser>)
            return "Fake";
        return std::is_same_v<User, PortalUser> ? "Portal" : "X11";
    }
};

using Users = testing::Types<FakeUser, PortalUser, X11User>;
TYPED_TEST_SUITE(ScreenSamplerContract, Users, UserNames);

TYPED_TEST(ScreenSamplerContract, CompletesWithTheColorThatTheUserPicked) {
    typename TestFixture::Outcome outcome;
    this->sampleInto(outcome);
    EXPECT_EQ(outcome.completions, 0) << "not within the call";
    this->m_user.pick();
    EXPECT_TRUE(this->completes(outcome));
    EXPECT_TRUE(outcome.color.has_value());
}

TYPED_TEST(ScreenSamplerContract, CompletesWithNothingWhenTheUserCancels) {
    typename TestFixture::Outcome outcome;
    this->sampleInto(outcome);
    this->m_user.cancel();
    EXPECT_TRUE(this->completes(outcome));
    EXPECT_FALSE(outcome.color.has_value());
}

TYPED_TEST(ScreenSamplerContract, GivesASecondCallNothingAndLeavesTheFirstAlone) {
    typename TestFixture::Outcome first;
    typename TestFixture::Outcome second;
    this->sampleInto(first);
    this->sampleInto(second);
    EXPECT_EQ(second.completions, 0) << "not within the call";
    this->m_user.pick();
    EXPECT_TRUE(this->completes(second));
    EXPECT_FALSE(second.color.has_value());
    EXPECT_TRUE(this->completes(first));
    EXPECT_TRUE(first.color.has_value());
}

TYPED_TEST(ScreenSamplerContract, SamplesAgainAfterEachEnd) {
    for (int round = 0; round < 3; ++round) {
        typename TestFixture::Outcome cancelled;
        this->sampleInto(cancelled);
        this->m_user.cancel();
        EXPECT_TRUE(this->completes(cancelled));
        typename TestFixture::Outcome picked;
        this->sampleInto(picked);
        this->m_user.pick();
        EXPECT_TRUE(this->completes(picked));
        EXPECT_TRUE(picked.color.has_value());
    }
}

} // namespace
} // namespace dropshade
