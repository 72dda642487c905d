// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "loupe/LoupeModel.h"
#include "loupe/LoupeMetrics.h"

#include <gtest/gtest.h>

namespace dropshade {
namespace {

constexpr QRect screens(0, 0, 1920, 1080);

LoupeModel modelAt(int x, int y) {
    return LoupeModel(screens, QPoint(x, y));
}

TEST(LoupeModel, StartsAtThePointerWithCellsOfTwelve) {
    const LoupeModel model = modelAt(17, 42);
    EXPECT_EQ(model.position(), QPoint(17, 42));
    EXPECT_EQ(model.cellSize(), 12);
}

TEST(LoupeModel, StopsAtEachCornerPixel) {
    LoupeModel model = modelAt(5, 5);
    model.moveTo(QPoint(-1, -10));
    EXPECT_EQ(model.position(), QPoint(0, 0));
    model.moveTo(QPoint(1920, 1090));
    EXPECT_EQ(model.position(), QPoint(1919, 1079));
}

TEST(LoupeModel, ZoomsInAndOutThroughTheSameSteps) {
    LoupeModel model = modelAt(5, 5);
    model.zoomIn();
    EXPECT_EQ(model.cellSize(), 16);
    model.zoomOut();
    EXPECT_EQ(model.cellSize(), 12);
    model.zoomOut();
    EXPECT_EQ(model.cellSize(), 8);
}

TEST(LoupeModel, StaysAtTheLastStepOfEitherEnd) {
    LoupeModel model = modelAt(5, 5);
    for (int step = 0; step < 20; ++step)
        model.zoomIn();
    EXPECT_EQ(model.cellSize(), 36);
    for (int step = 0; step < 20; ++step)
        model.zoomOut();
    EXPECT_EQ(model.cellSize(), 4);
}

TEST(LoupeModel, ShowsThirteenCellsAcrossAtTheUsualZoom) {
    const LoupeModel model = modelAt(5, 5);
    for (const double scale : {1.0, 1.25, 1.5, 2.0})
        EXPECT_EQ(model.cellsAcross(scale), 13) << "scale " << scale;
}

TEST(LoupeModel, FillsTheDiscAtEveryZoomAndScaleWithAnOddNumberOfWholeCells) {
    for (const double scale : {1.0, 1.25, 1.5, 1.75, 2.0, 3.0}) {
        LoupeModel model = modelAt(5, 5);
        for (int step = 0; step < 10; ++step)
            model.zoomOut();
        for (int step = 0; step < 10; ++step, model.zoomIn()) {
            const int across = model.cellsAcross(scale);
            EXPECT_EQ(across % 2, 1);
            EXPECT_GE(across * model.cellPixels(scale), qRound(loupe::discDiameter * scale));
            EXPECT_LT((across - 2) * model.cellPixels(scale), qRound(loupe::discDiameter * scale));
        }
    }
}

} // namespace
} // namespace dropshade
