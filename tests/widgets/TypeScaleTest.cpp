// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "widgets/TypeScale.h"

#include <QFontDatabase>
#include <QFontInfo>

#include <gtest/gtest.h>

namespace dropshade {
namespace {

TEST(TypeScale, WordsAreInTheDesktopsFontAndValuesInItsFixedWidthFont) {
    EXPECT_EQ(textFont(TextStyle::Body).family(),
              QFontDatabase::systemFont(QFontDatabase::GeneralFont).family());
    EXPECT_EQ(textFont(TextStyle::Value).family(),
              QFontDatabase::systemFont(QFontDatabase::FixedFont).family());
}

TEST(TypeScale, GrowsByTheGivenScale) {
    EXPECT_EQ(textFont(TextStyle::Measure, 1.0).pixelSize(), 32);
    EXPECT_EQ(textFont(TextStyle::Measure, 2.0).pixelSize(), 64);
}

TEST(TypeScale, EveryLineHoldsItsLetters) {
    for (int style = 0; style <= static_cast<int>(TextStyle::RulerFigure); ++style)
        EXPECT_GT(lineHeight(static_cast<TextStyle>(style)),
                  textFont(static_cast<TextStyle>(style)).pixelSize());
}

} // namespace
} // namespace dropshade
