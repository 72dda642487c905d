// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "palettes/FlowLayout.h"

#include <gmock/gmock.h>

namespace dropshade {
namespace {

using testing::ElementsAre;

/// Items of these sizes, and how often a size was asked for.
class Items {
public:
    explicit Items(const QList<QSizeF>& sizes) : m_sizes(sizes) {}

    [[nodiscard]] FlowLayout::Subviews subviews() {
        return {m_sizes.size(), [this](qsizetype index) {
                    ++m_asked;
                    return m_sizes.at(index);
                }};
    }
    void resize(qsizetype index, const QSizeF& size) { m_sizes[index] = size; }
    void append(const QSizeF& size) { m_sizes.append(size); }
    [[nodiscard]] int asked() const { return m_asked; }

private:
    QList<QSizeF> m_sizes;
    int m_asked = 0;
};

Items squares(int count, double side = 18.0) {
    return Items(QList<QSizeF>(count, QSizeF(side, side)));
}

constexpr double spacing = 3.0;

TEST(FlowLayout, WithoutItemsNeedsNoSpace) {
    auto cache = FlowLayout::makeCache();
    Items none({});
    EXPECT_EQ(FlowLayout(spacing).sizeThatFits(60.0, none.subviews(), cache), QSizeF(0.0, 0.0));
}

TEST(FlowLayout, PutsAnItemWiderThanTheWidthOnALineOfItsOwn) {
    auto cache = FlowLayout::makeCache();
    Items wide({QSizeF(90.0, 18.0)});
    EXPECT_EQ(FlowLayout(spacing).sizeThatFits(60.0, wide.subviews(), cache), QSizeF(90.0, 18.0));
    EXPECT_THAT(cache.positions, ElementsAre(QPointF(0.0, 0.0)));
}

TEST(FlowLayout, FillsALineToTheVeryEndBeforeItBreaks) {
    auto cache = FlowLayout::makeCache();
    Items items = squares(4);
    EXPECT_EQ(FlowLayout(spacing).sizeThatFits(60.0, items.subviews(), cache), QSizeF(60.0, 39.0));
    EXPECT_THAT(cache.positions,
                ElementsAre(QPointF(0, 0), QPointF(21, 0), QPointF(42, 0), QPointF(0, 21)));
}

TEST(FlowLayout, GivesALineTheHeightOfItsTallestItem) {
    auto cache = FlowLayout::makeCache();
    Items items({QSizeF(18, 18), QSizeF(18, 30), QSizeF(18, 24), QSizeF(18, 10)});
    EXPECT_EQ(FlowLayout(spacing).sizeThatFits(60.0, items.subviews(), cache), QSizeF(60.0, 43.0));
    EXPECT_EQ(cache.positions.at(3), QPointF(0, 33));
}

TEST(FlowLayout, WithoutAProposedWidthLaysAllOnOneLine) {
    auto cache = FlowLayout::makeCache();
    Items items = squares(5);
    EXPECT_EQ(FlowLayout(spacing).sizeThatFits(std::nullopt, items.subviews(), cache),
              QSizeF(102.0, 18.0));
}

TEST(FlowLayout, LeavesTheCacheUntouchedWhileWidthAndCountStay) {
    auto cache = FlowLayout::makeCache();
    Items items = squares(4);
    const FlowLayout layout(spacing);
    const QSizeF before = layout.sizeThatFits(60.0, items.subviews(), cache);
    items.resize(0, QSizeF(50.0, 50.0));
    FlowLayout::updateCache(cache, 4);
    EXPECT_EQ(layout.sizeThatFits(60.0, items.subviews(), cache), before);
    EXPECT_EQ(items.asked(), 4);
}

TEST(FlowLayout, ComputesAnewForAnotherWidth) {
    auto cache = FlowLayout::makeCache();
    Items items = squares(4);
    const FlowLayout layout(spacing);
    static_cast<void>(layout.sizeThatFits(60.0, items.subviews(), cache));
    EXPECT_EQ(layout.sizeThatFits(81.0, items.subviews(), cache), QSizeF(81.0, 18.0));
    EXPECT_EQ(items.asked(), 8);
}

TEST(FlowLayout, ComputesAnewForAnotherCount) {
    auto cache = FlowLayout::makeCache();
    Items items = squares(3);
    const FlowLayout layout(spacing);
    static_cast<void>(layout.sizeThatFits(60.0, items.subviews(), cache));
    items.append(QSizeF(18, 18));
    FlowLayout::updateCache(cache, 4);
    EXPECT_EQ(cache.width, -1.0);
    EXPECT_EQ(layout.sizeThatFits(60.0, items.subviews(), cache), QSizeF(60.0, 39.0));
}

TEST(FlowLayout, HandsTheRectanglesOfAPlacementToItsSink) {
    auto cache = FlowLayout::makeCache();
    Items items = squares(4);
    HoverScratch scratch;
    FlowLayout(spacing, &scratch).placeSubviews(QRectF(7, 9, 60, 100), items.subviews(), cache);
    EXPECT_THAT(scratch.frames, ElementsAre(QRectF(0, 0, 18, 18), QRectF(21, 0, 18, 18),
                                            QRectF(42, 0, 18, 18), QRectF(0, 21, 18, 18)));
}

TEST(FlowLayout, APointOnTheEdgeOfTwoRectanglesIsInJustOne) {
    EXPECT_TRUE(holds(QRectF(18, 0, 18, 18), QPointF(18, 0)));
    EXPECT_FALSE(holds(QRectF(0, 0, 18, 18), QPointF(18, 0)));
    EXPECT_FALSE(holds(QRectF(0, 0, 18, 18), QPointF(0, 18)));
}

} // namespace
} // namespace dropshade
