// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "palettes/HoverState.h"

#include "support/ManualScheduler.h"
#include "support/Palettes.h"
#include "support/QtPrinters.h"
#include "support/SignalCount.h"

#include <gmock/gmock.h>

namespace dropshade {
namespace {

using testing::IsEmpty;

class StatusHover : public testing::Test {
protected:
    ManualScheduler m_scheduler;
    HoverState m_hover{m_scheduler};
    PaletteSwatch m_red{QStringLiteral("#ff0000")};
    PaletteSwatch m_blue{QStringLiteral("#0000ff")};
};

TEST_F(StatusHover, AMoveToTheNextSwatchWithin150MillisecondsNeverBlanksTheBar) {
    m_hover.setSwatch(m_red);
    m_hover.setSwatch(std::nullopt);
    m_scheduler.advance(149);
    EXPECT_EQ(m_hover.swatch(), m_red);
    m_hover.setSwatch(m_blue);
    m_scheduler.advance(1000);
    EXPECT_EQ(m_hover.swatch(), m_blue);
}

TEST_F(StatusHover, ASwatchStaysFor150MillisecondsAfterThePointerHasLeft) {
    m_hover.setSwatch(m_red);
    m_hover.setSwatch(std::nullopt);
    m_scheduler.advance(149);
    EXPECT_TRUE(m_hover.swatch());
    m_scheduler.advance(1);
    EXPECT_FALSE(m_hover.swatch());
}

TEST_F(StatusHover, TheSameSwatchTwiceNotifiesOnce) {
    const SignalCount changes(m_hover, &HoverState::didChange);
    m_hover.setSwatch(m_red);
    m_hover.setSwatch(m_red);
    EXPECT_EQ(changes.count(), 1);
}

TEST_F(StatusHover, ALastingAbsenceNotifiesOnce) {
    m_hover.setSwatch(m_red);
    const SignalCount changes(m_hover, &HoverState::didChange);
    m_hover.setSwatch(std::nullopt);
    m_hover.setSwatch(std::nullopt);
    m_scheduler.advance(150);
    m_hover.setSwatch(std::nullopt);
    m_scheduler.advance(150);
    EXPECT_EQ(changes.count(), 1);
}

TEST_F(StatusHover, AHintNotifiesOnlyWhereItDiffers) {
    const SignalCount changes(m_hover, &HoverState::didChange);
    m_hover.setHint(QStringLiteral("Control-click for options"));
    m_hover.setHint(QStringLiteral("Control-click for options"));
    EXPECT_EQ(changes.count(), 1);
    m_hover.setHint(std::nullopt);
    EXPECT_EQ(changes.count(), 2);
}

TEST_F(StatusHover, AClearingThatIsStillToComeEndsWithTheState) {
    {
        HoverState hover(m_scheduler);
        hover.setSwatch(m_red);
        hover.setSwatch(std::nullopt);
    }
    m_scheduler.advance(150);
    EXPECT_EQ(m_scheduler.pendingCount(), 0);
}

class HoverInARow : public testing::Test {
protected:
    HoverInARow() {
        for (int index = 0; index < 4; ++index)
            m_row.scratch().frames.append(QRectF(21.0 * index, 0.0, 18.0, 18.0));
    }

    QList<PaletteSwatch> m_swatches = makeScale("", {"red", "green", "blue"}).swatches();
    QList<std::optional<PaletteSwatch>> m_told;
    RowHover m_row{[this](const auto& swatch) { m_told.append(swatch); }};
};

TEST_F(HoverInARow, FindsTheSwatchUnderThePointer) {
    EXPECT_TRUE(m_row.moved(QPointF(30.0, 9.0), m_swatches));
    EXPECT_EQ(m_row.hoveredSwatchId(), m_swatches.at(1).id());
    ASSERT_EQ(m_told.size(), 1);
    EXPECT_EQ(m_told.first(), m_swatches.at(1));
}

TEST_F(HoverInARow, AMoveWithinOneSwatchTellsNobody) {
    m_row.moved(QPointF(30.0, 9.0), m_swatches);
    m_told.clear();
    EXPECT_FALSE(m_row.moved(QPointF(31.0, 10.0), m_swatches));
    EXPECT_THAT(m_told, IsEmpty());
}

TEST_F(HoverInARow, TheGapBetweenSwatchesIsNoSwatch) {
    m_row.moved(QPointF(30.0, 9.0), m_swatches);
    EXPECT_TRUE(m_row.moved(QPointF(19.5, 9.0), m_swatches));
    EXPECT_FALSE(m_row.scratch().lastIndex);
    EXPECT_FALSE(m_row.hoveredSwatchId());
    EXPECT_FALSE(m_told.last());
}

TEST_F(HoverInARow, AGapStartsTheClearingOfTheStatusBar) {
    ManualScheduler scheduler;
    HoverState hover(scheduler);
    RowHover row([&hover](const auto& swatch) { hover.setSwatch(swatch); });
    row.scratch().frames = m_row.scratch().frames;
    row.moved(QPointF(30.0, 9.0), m_swatches);
    row.moved(QPointF(19.5, 9.0), m_swatches);
    scheduler.advance(149);
    EXPECT_TRUE(hover.swatch());
    scheduler.advance(1);
    EXPECT_FALSE(hover.swatch());
}

TEST_F(HoverInARow, TheAddButtonBehindTheSwatchesIsNone) {
    EXPECT_FALSE(m_row.moved(QPointF(70.0, 9.0), m_swatches));
    EXPECT_THAT(m_told, IsEmpty());
}

TEST_F(HoverInARow, MoreSwatchesThanRectanglesAreNotReached) {
    m_row.scratch().frames.resize(1);
    EXPECT_FALSE(m_row.moved(QPointF(30.0, 9.0), m_swatches));
}

TEST_F(HoverInARow, LeavingTellsOnce) {
    m_row.moved(QPointF(30.0, 9.0), m_swatches);
    m_told.clear();
    EXPECT_TRUE(m_row.ended());
    EXPECT_FALSE(m_row.ended());
    EXPECT_EQ(m_told.size(), 1);
}

} // namespace
} // namespace dropshade
