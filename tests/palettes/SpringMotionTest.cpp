// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "palettes/SpringMotion.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace dropshade {
namespace {

using Seconds = std::chrono::duration<double>;

/// The equation of the spring itself, in steps so small that nothing is left to doubt.
double integrated(double from, double to, double response, double fraction, double time) {
    const double frequency = 2.0 * std::numbers::pi / response;
    const double stiffness = frequency * frequency;
    const double damping = 4.0 * std::numbers::pi * fraction / response;
    double position = from;
    double velocity = 0.0;
    const double step = 1e-6;
    for (double t = 0.0; t < time; t += step) {
        velocity += (-stiffness * (position - to) - damping * velocity) * step;
        position += velocity * step;
    }
    return position;
}

struct Case {
    const char* name;
    double response;
    double fraction;
};

class Spring : public testing::TestWithParam<Case> {};

TEST_P(Spring, FollowsTheEquationOfADampedSpring) {
    const auto& [name, response, fraction] = GetParam();
    for (const double time : {0.01, 0.1, 0.25, 0.5}) {
        SpringMotion motion(0.0, response, fraction);
        motion.setTarget(100.0);
        motion.advance(Seconds(time));
        EXPECT_NEAR(motion.value(), integrated(0.0, 100.0, response, fraction, time), 0.02);
    }
}

TEST_P(Spring, TakesTheSamePathInWhateverSteps) {
    const auto& [name, response, fraction] = GetParam();
    SpringMotion once(5.0, response, fraction);
    SpringMotion often(5.0, response, fraction);
    once.setTarget(-40.0);
    often.setTarget(-40.0);
    once.advance(Seconds(0.16));
    for (int frame = 0; frame < 10; ++frame)
        often.advance(Seconds(0.016));
    EXPECT_NEAR(once.value(), often.value(), 1e-9);
    EXPECT_NEAR(once.velocity(), often.velocity(), 1e-9);
}

TEST_P(Spring, ComesToRestAtItsTarget) {
    const auto& [name, response, fraction] = GetParam();
    SpringMotion motion(0.0, response, fraction);
    motion.setTarget(300.0);
    EXPECT_FALSE(motion.isAtRest());
    motion.advance(Seconds(4.0 * response));
    EXPECT_TRUE(motion.isAtRest());
    EXPECT_NEAR(motion.value(), 300.0, 0.125);
}

INSTANTIATE_TEST_SUITE_P(OfTheInterface, Spring,
                         testing::Values(Case{"SwatchLift", 0.22, 0.85},
                                         Case{"PaletteLift", 0.25, 0.82},
                                         Case{"Reorder", 0.32, 0.78}, Case{"Critical", 0.3, 1.0}),
                         [](const auto& row) { return row.param.name; });

TEST(SpringMotion, ANewTargetOnTheWayKeepsPlaceAndSpeed) {
    SpringMotion motion(0.0, 0.32, 0.78);
    motion.setTarget(100.0);
    motion.advance(Seconds(0.1));
    const double place = motion.value();
    const double speed = motion.velocity();
    motion.setTarget(0.0);
    EXPECT_EQ(motion.value(), place);
    EXPECT_EQ(motion.velocity(), speed);
    motion.advance(Seconds(0.001));
    EXPECT_GT(motion.value(), place) << "it still goes the old way, as a thing with mass does";
}

TEST(SpringMotion, OvershootsByNoMoreThanItsDampingAllows) {
    SpringMotion motion(0.0, 0.32, 0.78);
    motion.setTarget(100.0);
    double highest = 0.0;
    for (int frame = 0; frame < 60; ++frame) {
        motion.advance(Seconds(0.008));
        highest = std::max(highest, motion.value());
    }
    const double fraction = 0.78;
    const double overshoot =
        100.0 * std::exp(-fraction * std::numbers::pi / std::sqrt(1.0 - fraction * fraction));
    EXPECT_LE(highest, 100.0 + overshoot + 0.01);
    EXPECT_GT(highest, 100.0);
}

TEST(SpringMotion, JumpsAndFinishesWithoutSpeed) {
    SpringMotion motion(0.0, 0.32, 0.78);
    motion.setTarget(100.0);
    motion.advance(Seconds(0.1));
    motion.finish();
    EXPECT_EQ(motion.value(), 100.0);
    EXPECT_EQ(motion.velocity(), 0.0);
    EXPECT_TRUE(motion.isAtRest());
    motion.jump(7.0);
    EXPECT_EQ(motion.target(), 7.0);
}

} // namespace
} // namespace dropshade
