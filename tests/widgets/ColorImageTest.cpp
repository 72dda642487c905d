// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "widgets/ColorImage.h"

#include <gtest/gtest.h>

namespace dropshade {
namespace {

const Theme theme = Theme::of(Theme::Scheme::Light);

QImage image(const QColor& color, double scale) {
    return colorImage(color, theme)
        .pixmap(QSize(20, 20), scale)
        .toImage()
        .convertToFormat(QImage::Format_ARGB32);
}

TEST(ColorImage, IsTheColorAtTheScaleOfTheScreen) {
    for (const double scale : {1.0, 1.5, 2.0}) {
        const QImage drawn = image(QColor(10, 200, 30), scale);
        EXPECT_EQ(drawn.size(), (QSizeF(20, 20) * scale).toSize());
        EXPECT_EQ(drawn.pixelColor(drawn.width() / 2, drawn.height() / 2), QColor(10, 200, 30));
    }
}

TEST(ColorImage, HasRoundCornersAndAnEdge) {
    const QImage white = image(Qt::white, 2.0);
    EXPECT_EQ(white.pixelColor(0, 0).alpha(), 0);
    EXPECT_NE(white.pixelColor(20, 1), QColor(Qt::white)) << "white on white is still seen";
}

TEST(ColorImage, KeepsTheColorsOwnAlphaOverNothing) {
    EXPECT_EQ(image(QColor(10, 200, 30, 128), 1.0).pixelColor(10, 10).alpha(), 128);
}

TEST(ColorImage, IsNeverLargerThanARowHasRoomFor) {
    EXPECT_EQ(colorImage(Qt::red, theme).actualSize(QSize(64, 64)), QSize(20, 20));
}

} // namespace
} // namespace dropshade
