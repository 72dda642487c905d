// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "ColorSelector/SelectorGeometry.h"

#include <gtest/gtest.h>

#include <cmath>

namespace dropshade::selector {
namespace {

TEST(BarValue, IsTheShareOfTheBarLeftOfThePlace) {
    EXPECT_EQ(barValue(92.0, 368.0), 0.25);
    EXPECT_EQ(barValue(1.0, 3.0), 1.0 / 3.0);
}

TEST(BarValue, StaysAtItsLimitBeyondTheEndsWithoutWrapping) {
    EXPECT_EQ(barValue(-0.001, 368.0), 0.0);
    EXPECT_EQ(barValue(-5000.0, 368.0), 0.0);
    EXPECT_EQ(barValue(368.001, 368.0), 1.0);
    EXPECT_EQ(barValue(5000.0, 368.0), 1.0);
}

TEST(BarValue, IsExactAtBothEdges) {
    EXPECT_EQ(barValue(0.0, 368.0), 0.0);
    EXPECT_EQ(barValue(368.0, 368.0), 1.0);
}

TEST(BarValue, OfABarWithoutLengthIsAValueAllTheSame) {
    EXPECT_EQ(barValue(0.0, 0.0), 0.0);
    EXPECT_EQ(barValue(5.0, 0.0), 1.0);
    EXPECT_EQ(barValue(-5.0, 0.0), 0.0);
}

TEST(BarThumb, LiesAtTheValue) {
    EXPECT_EQ(barThumb(0.5, 368.0, 16.0), 184.0);
}

TEST(BarThumb, NeverSticksOutOfTheTrack) {
    EXPECT_EQ(barThumb(0.0, 368.0, 16.0), 8.0);
    EXPECT_EQ(barThumb(1.0, 368.0, 16.0), 360.0);
    EXPECT_EQ(barThumb(0.01, 368.0, 16.0), 8.0);
}

TEST(BarThumb, OnABarShorterThanItTheUpperLimitIsAppliedLast) {
    EXPECT_EQ(barThumb(0.5, 10.0, 16.0), 2.0);
}

TEST(SquareValue, SaturationGrowsToTheRightAndBrightnessToTheTop) {
    EXPECT_EQ(squareValue(92.0, 36.0, 368.0, 144.0), (SquareValue{0.25, 0.75}));
    EXPECT_EQ(squareValue(0.0, 144.0, 368.0, 144.0), (SquareValue{0.0, 0.0}));
    EXPECT_EQ(squareValue(368.0, 0.0, 368.0, 144.0), (SquareValue{1.0, 1.0}));
}

TEST(SquareValue, AboveTheTopIsFullBrightnessAndBelowTheBottomNone) {
    EXPECT_EQ(squareValue(184.0, -30.0, 368.0, 144.0).brightness, 1.0);
    EXPECT_EQ(squareValue(184.0, 900.0, 368.0, 144.0).brightness, 0.0);
    EXPECT_EQ(squareValue(-9.0, 10.0, 368.0, 144.0).saturation, 0.0);
    EXPECT_EQ(squareValue(999.0, 10.0, 368.0, 144.0).saturation, 1.0);
}

TEST(SquareThumb, LiesAtTheValueAlsoInTheCorners) {
    EXPECT_EQ(squareThumb({0.0, 1.0}, 368.0, 144.0), (Place{0.0, 0.0}));
    EXPECT_EQ(squareThumb({1.0, 0.0}, 368.0, 144.0), (Place{368.0, 144.0}));
    EXPECT_EQ(squareThumb({0.25, 0.75}, 368.0, 144.0), (Place{92.0, 36.0}));
}

TEST(Stepped, MovesByWholeHundredths) {
    EXPECT_DOUBLE_EQ(stepped(0.5, step), 0.51);
    EXPECT_DOUBLE_EQ(stepped(0.5, -step), 0.49);
    EXPECT_DOUBLE_EQ(stepped(0.5, largeStep), 0.6);
}

TEST(Stepped, AlwaysMovesFromAValueBetweenTwoHundredths) {
    EXPECT_DOUBLE_EQ(stepped(0.503, step), 0.51);
    EXPECT_DOUBLE_EQ(stepped(0.503, -step), 0.5);
}

TEST(Stepped, StopsAtTheEnds) {
    EXPECT_EQ(stepped(0.995, step), 1.0);
    EXPECT_EQ(stepped(1.0, largeStep), 1.0);
    EXPECT_EQ(stepped(0.004, -step), 0.0);
    EXPECT_EQ(stepped(0.0, -largeStep), 0.0);
}

TEST(Stepped, AHundredStepsCrossTheWholeRangeWithoutDrift) {
    double value = 0.0;
    for (int count = 0; count < 100; ++count) {
        EXPECT_NEAR(value, count / 100.0, 1e-12);
        value = stepped(value, step);
    }
    EXPECT_EQ(value, 1.0);
}

} // namespace
} // namespace dropshade::selector
