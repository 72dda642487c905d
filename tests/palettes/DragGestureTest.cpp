// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "palettes/DragGesture.h"

#include "support/ManualScheduler.h"

#include <gtest/gtest.h>

namespace dropshade {
namespace {

class Gesture : public testing::Test {
protected:
    Gesture() {
        QObject::connect(&m_gesture, &DragGesture::changed,
                         [this](const DragValue& value) { m_values.append(value); });
        QObject::connect(&m_gesture, &DragGesture::ended, [this] { ++m_ends; });
    }

    ManualScheduler m_scheduler;
    DragGesture m_gesture{m_scheduler};
    QList<DragValue> m_values;
    int m_ends = 0;
};

TEST_F(Gesture, ShorterThanFourPointsStartsNothingAndLeavesAClick) {
    m_gesture.press(QPointF(10.0, 10.0));
    m_gesture.move(QPointF(13.9, 10.0));
    EXPECT_FALSE(m_gesture.end(headerClickPause));
    EXPECT_TRUE(m_gesture.allowsClick());
    EXPECT_TRUE(m_values.isEmpty());
    EXPECT_EQ(m_ends, 0);
}

TEST_F(Gesture, BeginsAtFourPointsInAnyDirection) {
    m_gesture.press(QPointF(10.0, 10.0));
    m_gesture.move(QPointF(12.5, 13.2));
    ASSERT_EQ(m_values.size(), 1);
    EXPECT_EQ(m_values.first().startLocation, QPointF(10.0, 10.0));
    EXPECT_EQ(m_values.first().location, QPointF(12.5, 13.2));
    m_gesture.move(QPointF(10.0, 10.0));
    EXPECT_EQ(m_values.size(), 2) << "once begun, it goes on close by too";
}

TEST_F(Gesture, EndsOnceWhetherReleasedOrTakenAway) {
    m_gesture.press(QPointF());
    m_gesture.move(QPointF(5.0, 0.0));
    EXPECT_TRUE(m_gesture.end(headerClickPause));
    EXPECT_FALSE(m_gesture.end(headerClickPause));
    EXPECT_EQ(m_ends, 1);
}

TEST_F(Gesture, TheReleaseOfAHeadersDragIsNoClickForATenthOfASecond) {
    m_gesture.press(QPointF());
    m_gesture.move(QPointF(5.0, 0.0));
    EXPECT_FALSE(m_gesture.allowsClick());
    m_gesture.end(headerClickPause);
    m_scheduler.advance(99);
    EXPECT_FALSE(m_gesture.allowsClick());
    m_scheduler.advance(1);
    EXPECT_TRUE(m_gesture.allowsClick());
}

TEST_F(Gesture, TheReleaseOfAScalesDragIsNoClickForAQuarterOfASecond) {
    m_gesture.press(QPointF());
    m_gesture.move(QPointF(5.0, 0.0));
    m_gesture.end(labelClickPause);
    m_scheduler.advance(249);
    EXPECT_FALSE(m_gesture.allowsClick());
    m_scheduler.advance(1);
    EXPECT_TRUE(m_gesture.allowsClick());
}

TEST_F(Gesture, AMoveWithoutAPressIsNone) {
    m_gesture.move(QPointF(50.0, 50.0));
    EXPECT_FALSE(m_gesture.isDragging());
}

} // namespace
} // namespace dropshade
