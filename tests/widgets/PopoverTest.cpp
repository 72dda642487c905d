// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "widgets/Popover.h"

#include "support/FakeAppearance.h"
#include "widgets/Afterimage.h"
#include "widgets/TextButton.h"

#include <QPointer>
#include <QTest>
#include <QVBoxLayout>

#include <gtest/gtest.h>

namespace dropshade {
namespace {

const QRect room(0, 0, 1000, 800);
const QSize size(200, 150);

TEST(PopoverPosition, LiesBeneathItsAnchorWhereThereIsRoom) {
    const QRect anchor(400, 300, 32, 32);
    const QPoint corner = popoverPosition(size, anchor, anchor, room, Popover::Side::Below);
    EXPECT_EQ(corner.x(), anchor.left());
    EXPECT_GT(corner.y(), anchor.bottom());
}

TEST(PopoverPosition, GoesAboveItsAnchorAtTheEndOfTheScreen) {
    const QRect anchor(400, 740, 32, 32);
    const QPoint corner = popoverPosition(size, anchor, anchor, room, Popover::Side::Below);
    EXPECT_LE(corner.y() + size.height(), anchor.top());
}

TEST(PopoverPosition, LiesBesideWhatItMustKeepClear) {
    const QRect window(400, 200, 420, 460);
    const QRect anchor(416, 260, 32, 32);
    const QPoint corner = popoverPosition(size, anchor, window, room, Popover::Side::Beside);
    EXPECT_FALSE(QRect(corner, size).intersects(window));
    EXPECT_LT(corner.x(), window.left());
}

TEST(PopoverPosition, LiesOnTheOtherSideWhereTheScreenEnds) {
    const QRect window(10, 200, 420, 460);
    const QRect anchor(26, 260, 32, 32);
    const QPoint corner = popoverPosition(size, anchor, window, room, Popover::Side::Beside);
    EXPECT_GT(corner.x(), window.right());
}

TEST(PopoverPosition, IsOnTheScreenWhereNothingFits) {
    const QRect all = room.adjusted(5, 5, -5, -5);
    const QPoint corner = popoverPosition(size, all, all, room, Popover::Side::Beside);
    EXPECT_TRUE(room.contains(QRect(corner, size)));
}

class PopoverTest : public testing::Test {
protected:
    FakeAppearance m_appearance;
    Look m_look{m_appearance};
    QWidget m_window;
    TextButton m_anchor{m_look, TextButton::Kind::Plain, QStringLiteral("Anchor"), &m_window};

    void SetUp() override {
        m_appearance.setReducedMotion(true);
        m_window.resize(300, 200);
        m_window.show();
    }
};

TEST_F(PopoverTest, TellsOnceThatItHasClosedAndIsGoneThen) {
    QPointer<Popover> popover = new Popover(m_look, m_anchor);
    int closed = 0;
    QObject::connect(popover, &Popover::closed, [&closed] { ++closed; });
    popover->open(Popover::Side::Below);
    EXPECT_TRUE(popover->isVisible());
    QTest::keyClick(popover, Qt::Key_Escape);
    EXPECT_EQ(closed, 1);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(popover.isNull());
    EXPECT_EQ(closed, 1);
}

TEST_F(PopoverTest, FadesOutInItsPlaceWhileItIsClosedAlready) {
    m_appearance.setReducedMotion(false);
    auto* popover = new Popover(m_look, m_anchor);
    popover->open(Popover::Side::Below);
    const QRect place = popover->geometry();
    const QPointer<Afterimage> left = m_window.findChild<Afterimage*>();
    ASSERT_FALSE(left.isNull());
    EXPECT_EQ(left->windowOpacity(), 0.0);
    EXPECT_TRUE(QTest::qWaitFor([popover] { return popover->windowOpacity() == 1.0; }));
    popover->close();
    EXPECT_FALSE(popover->isVisible());
    EXPECT_GT(left->windowOpacity(), 0.0);
    EXPECT_EQ(left->geometry(), place);
    EXPECT_TRUE(left->isVisible());
    EXPECT_TRUE(left->windowFlags().testFlag(Qt::WindowTransparentForInput));
    EXPECT_TRUE(QTest::qWaitFor([&left] { return left.isNull(); }));
}

TEST_F(PopoverTest, NothingIsLeftOfItWhenItsWindowHides) {
    m_appearance.setReducedMotion(false);
    auto* popover = new Popover(m_look, m_anchor);
    popover->open(Popover::Side::Below);
    popover->close();
    const QPointer<Afterimage> left = m_window.findChild<Afterimage*>();
    ASSERT_FALSE(left.isNull());
    m_window.hide();
    EXPECT_TRUE(left.isNull() || !left->isVisible());
}

TEST_F(PopoverTest, GoesAtOnceWhereNothingIsToMove) {
    auto* popover = new Popover(m_look, m_anchor);
    popover->open(Popover::Side::Below);
    popover->close();
    EXPECT_EQ(m_window.findChild<Afterimage*>(), nullptr);
}

TEST_F(PopoverTest, HasARoomForItsShadowOnlyWhereWindowsAreBlended) {
    m_appearance.setBlendsWindows(false);
    Popover plain(m_look, m_anchor);
    EXPECT_EQ(plain.surfaceGeometry(), plain.geometry());
    m_appearance.setBlendsWindows(true);
    Popover blended(m_look, m_anchor);
    EXPECT_NE(blended.surfaceGeometry(), blended.geometry());
}

} // namespace
} // namespace dropshade
