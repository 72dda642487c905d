// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "palettes/StatusText.h"

#include "support/QtPrinters.h"

#include <gtest/gtest.h>

namespace dropshade {
namespace {

/// Every character is 10 points wide.
const StatusTextMeasure tens{[](const QString& text) { return 10.0 * double(text.size()); },
                             [](const QString& text) { return 10.0 * double(text.size()); }, 8.0};

const PaletteSwatch named(QStringLiteral("#008fa1"), QStringLiteral("sky-600"));

TEST(StatusTextFitting, ShowsNameAndValueWhereBothFit) {
    const StatusText text = fittingStatusText(named, 148.0, tens);
    EXPECT_EQ(text.label, QStringLiteral("sky-600"));
    EXPECT_EQ(text.value, QStringLiteral("#008fa1"));
}

TEST(StatusTextFitting, ShowsTheValueAloneWhereTheNameDoesNotFit) {
    const StatusText text = fittingStatusText(named, 147.0, tens);
    EXPECT_TRUE(text.label.isEmpty());
    EXPECT_EQ(text.value, QStringLiteral("#008fa1"));
}

TEST(StatusTextFitting, ShowsAShortNameWhereTheValueIsTooLong) {
    const PaletteSwatch swatch(QStringLiteral("rgba(100, 100, 100, 0.5)"), QStringLiteral("ash"));
    const StatusText text = fittingStatusText(swatch, 100.0, tens);
    EXPECT_EQ(text.label, QStringLiteral("ash"));
    EXPECT_TRUE(text.value.isEmpty());
}

TEST(StatusTextFitting, ShowsTheColorAloneWhereNothingFits) {
    const StatusText text = fittingStatusText(named, 69.0, tens);
    EXPECT_TRUE(text.label.isEmpty());
    EXPECT_TRUE(text.value.isEmpty());
}

TEST(StatusTextFitting, WithoutANameNeedsNoGap) {
    EXPECT_EQ(fittingStatusText(PaletteSwatch(QStringLiteral("red")), 30.0, tens).value,
              QStringLiteral("red"));
}

} // namespace
} // namespace dropshade
