// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "widgets/Icon.h"

#include <QFile>
#include <QImage>

#include <gtest/gtest.h>

#include <cstdlib>

namespace dropshade {
namespace {

int paintedPixels(const QImage& image) {
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            count += qAlpha(image.pixel(x, y)) > 0 ? 1 : 0;
    }
    return count;
}

int pixelsOfAnotherInk(const QImage& image, const QColor& ink) {
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor color(image.pixel(x, y));
            const bool isSolid = qAlpha(image.pixel(x, y)) > 200;
            count += isSolid && std::abs(color.blue() - ink.blue()) > 3 ? 1 : 0;
        }
    }
    return count;
}

class IconTest : public testing::TestWithParam<int> {
protected:
    Icon m_icon = static_cast<Icon>(GetParam());
};

TEST_P(IconTest, IsDrawnInItsInkAloneAtEveryScale) {
    const QColor ink(43, 80, 208);
    for (const double ratio : {1.0, 1.25, 2.0}) {
        const QPixmap pixmap = iconPixmap(m_icon, ink, 16, ratio);
        ASSERT_EQ(pixmap.size(), QSize(qRound(16 * ratio), qRound(16 * ratio)));
        EXPECT_EQ(pixmap.deviceIndependentSize(), QSizeF(16, 16));
        const QImage image = pixmap.toImage().convertToFormat(QImage::Format_ARGB32);
        ASSERT_GT(paintedPixels(image), 0);
        EXPECT_EQ(pixelsOfAnotherInk(image, ink), 0);
    }
}

INSTANTIATE_TEST_SUITE_P(All, IconTest, testing::Range(0, 34));

TEST(Icon, AFilledStarHasInkWhereAnOutlinedOneHasNone) {
    const auto middle = [](Icon icon) {
        return qAlpha(iconPixmap(icon, Qt::black, 16, 2.0).toImage().pixel(16, 16));
    };
    EXPECT_EQ(middle(Icon::Star), 0);
    EXPECT_EQ(middle(Icon::StarFill), 255);
}

TEST(Icon, TranslucentInkIsDrawnTranslucent) {
    const QImage image = iconPixmap(Icon::StarFill, QColor(0, 0, 0, 128), 16, 1.0).toImage();
    EXPECT_NEAR(qAlpha(image.pixel(8, 8)), 128, 2);
}

TEST(Icon, TheLicenceOfTheDrawingsIsInTheProgram) {
    EXPECT_TRUE(QFile::exists(QStringLiteral(":/icons/lucide/LICENSE")));
}

TEST(Icon, AMenuGetsASharpDrawingAtBothScales) {
    const QIcon icon = tintedIcon(Icon::Copy, Qt::black, Qt::gray, 14);
    EXPECT_TRUE(icon.availableSizes().contains(QSize(14, 14)));
    EXPECT_NE(icon.pixmap(14, QIcon::Normal).toImage(), icon.pixmap(14, QIcon::Disabled).toImage());
}

} // namespace
} // namespace dropshade
