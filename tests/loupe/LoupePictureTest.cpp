// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "loupe/LoupePicture.h"
#include "loupe/LoupeMetrics.h"

#include <QPainter>

#include <gtest/gtest.h>

namespace dropshade {
namespace {

constexpr QRect screen(0, 0, 1000, 800);
const QColor ground(200, 200, 200);

struct Case {
    double scale;
    QPoint position;
};

LoupeScene sceneAt(const Case& where) {
    const LoupeModel model(screen, where.position);
    LoupeScene scene;
    const int across = model.cellsAcross(where.scale);
    scene.cells = QImage(across, across, QImage::Format_ARGB32);
    scene.cells.fill(Qt::white);
    scene.cells.setPixelColor(across / 2, across / 2, QColor(255, 0, 128));
    scene.cellPixels = model.cellPixels(where.scale);
    scene.color = QColor(255, 0, 128);
    scene.text = QStringLiteral("#FF0080");
    scene.position = where.position;
    scene.screen = screen;
    return scene;
}

QImage painted(const LoupePicture& picture, const LoupeScene& scene) {
    QImage image(screen.size(), QImage::Format_RGB32);
    image.fill(ground);
    QPainter painter(&image);
    picture.paint(painter, scene);
    return image;
}

/// The smallest rectangle that holds every pixel that is not the ground.
QRect touched(const QImage& image) {
    QRect result;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y) != ground)
                result |= QRect(x, y, 1, 1);
        }
    }
    return result;
}

class LoupePictureAt : public testing::TestWithParam<double> {
protected:
    LoupePicture picture{Theme::of(Theme::Scheme::Light), GetParam()};
};

TEST_P(LoupePictureAt, ShowsThePixelItselfInTheMiddle) {
    const QPoint position(500, 400);
    const QImage image = painted(picture, sceneAt({GetParam(), position}));
    EXPECT_EQ(image.pixelColor(position), QColor(255, 0, 128));
}

TEST_P(LoupePictureAt, TouchesNothingOutsideOfItsExtent) {
    for (const QPoint& position : {QPoint(500, 400), QPoint(0, 0), QPoint(999, 799)}) {
        const LoupeScene scene = sceneAt({GetParam(), position});
        const QRect extent = picture.extent(scene);
        EXPECT_TRUE(extent.contains(touched(painted(picture, scene))))
            << "at " << position.x() << ", " << position.y();
    }
}

TEST_P(LoupePictureAt, PutsThePlateBeneathTheDisc) {
    const QPoint position(500, 300);
    const QImage image = painted(picture, sceneAt({GetParam(), position}));
    const int reach = qRound((loupe::outerRadius + loupe::plateGap + 4.0) * GetParam());
    EXPECT_EQ(image.pixelColor(position + QPoint(0, reach)),
              Theme::of(Theme::Scheme::Light).surfacePlate);
}

TEST_P(LoupePictureAt, PutsThePlateAboveTheDiscWhereTheScreenEnds) {
    const QPoint position(500, 780);
    const QImage image = painted(picture, sceneAt({GetParam(), position}));
    const int reach = qRound((loupe::outerRadius + loupe::plateGap + 4.0) * GetParam());
    EXPECT_EQ(image.pixelColor(position - QPoint(0, reach)),
              Theme::of(Theme::Scheme::Light).surfacePlate);
}

TEST_P(LoupePictureAt, KeepsThePlateWholeAtEveryCorner) {
    const QColor plate = Theme::of(Theme::Scheme::Light).surfacePlate;
    for (const QPoint& corner :
         {screen.topLeft(), screen.topRight(), screen.bottomLeft(), screen.bottomRight()}) {
        const QImage image = painted(picture, sceneAt({GetParam(), corner}));
        const bool isTop = corner.y() == 0;
        const int reach = qRound((loupe::outerRadius + loupe::plateGap + 4.0) * GetParam());
        const int y = isTop ? reach : screen.bottom() - reach;
        QList<int> columns;
        for (int x = 0; x < screen.width(); ++x) {
            if (image.pixelColor(x, y) == plate)
                columns.append(x);
        }
        ASSERT_FALSE(columns.isEmpty());
        EXPECT_GE(columns.first(), 1);
        EXPECT_LT(columns.last(), screen.right());
        EXPECT_GT(columns.last() - columns.first(), qRound(90 * GetParam()));
    }
}

TEST_P(LoupePictureAt, ShowsWhatLiesBeyondTheScreenAsEmpty) {
    LoupeScene scene = sceneAt({GetParam(), QPoint(500, 400)});
    scene.cells.fill(Qt::transparent);
    const QImage image = painted(picture, scene);
    const int cell = scene.cellPixels;
    EXPECT_EQ(image.pixelColor(500 - 2 * cell, 400 - 2 * cell),
              Theme::of(Theme::Scheme::Light).surfaceSunken);
}

INSTANTIATE_TEST_SUITE_P(EveryScale, LoupePictureAt, testing::Values(1.0, 1.25, 1.5, 2.0),
                         [](const auto& scale) {
                             return "Percent" + std::to_string(qRound(scale.param * 100));
                         });

} // namespace
} // namespace dropshade
