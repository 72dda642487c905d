// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "interchange/ColorConverter.h"

#include "interchange/HexText.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

#include <QTemporaryFile>

#include <limits>

namespace dropshade {
namespace {

constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
const QString noFile = QStringLiteral("");

TEST(ColorConverter, ConvertsLabUnderD50) {
    ColorConverter converter;
    EXPECT_EQ(hexText(converter.fromLab(0, 0, 0)), QStringLiteral("#000000"));
    EXPECT_EQ(hexText(converter.fromLab(50, 0, 0)), QStringLiteral("#777777"));
    EXPECT_EQ(hexText(converter.fromLab(100, 0, 0)), QStringLiteral("#ffffff"));
    // sRGB's red, green and blue by CSS Color 4's sample conversions, rounded to two digits.
    EXPECT_EQ(hexText(converter.fromLab(54.29, 80.81, 69.89)), QStringLiteral("#ff0000"));
    EXPECT_EQ(hexText(converter.fromLab(87.82, -79.29, 80.99)), QStringLiteral("#00ff00"));
    EXPECT_EQ(hexText(converter.fromLab(29.57, 68.30, -112.03)), QStringLiteral("#0000ff"));
}

TEST(ColorConverter, ClampsLab) {
    ColorConverter converter;
    EXPECT_EQ(converter.fromLab(1e9, 0, 0), converter.fromLab(100, 0, 0));
    EXPECT_EQ(converter.fromLab(50, -1e9, 1e9), converter.fromLab(50, -128, 127));
    EXPECT_EQ(converter.fromLab(50, notANumber, notANumber), converter.fromLab(50, 0, 0));
    EXPECT_EQ(converter.fromLab(notANumber, 0, 0), converter.fromLab(0, 0, 0));
}

TEST(ColorConverter, ConvertsInkPlainlyWithoutAProfile) {
    ColorConverter converter(noFile);
    EXPECT_EQ(hexText(converter.fromCmyk(0, 0, 0, 0)), QStringLiteral("#ffffff"));
    EXPECT_EQ(hexText(converter.fromCmyk(1, 0, 0, 0)), QStringLiteral("#00ffff"));
    EXPECT_EQ(hexText(converter.fromCmyk(0, 0.5, 1, 0.5)), QStringLiteral("#804000"));
    EXPECT_EQ(hexText(converter.fromCmyk(0, 0, 0, 7)), QStringLiteral("#000000"));
    EXPECT_EQ(hexText(converter.fromCmyk(notANumber, -1, 0, 0)), QStringLiteral("#ffffff"));
}

TEST(ColorConverter, ConvertsInkByTheProfileOfPrint) {
    ColorConverter converter;
    EXPECT_EQ(hexText(converter.fromCmyk(0, 0, 0, 0)), QStringLiteral("#ffffff"));
    EXPECT_EQ(converter.fromCmyk(-1, notANumber, 0, 0), converter.fromCmyk(0, 0, 0, 0));
    EXPECT_EQ(converter.fromCmyk(1e9, 0, 0, 0), converter.fromCmyk(1, 0, 0, 0));
    // Printed black is dark but not the display's; printed magenta is no full magenta.
    EXPECT_LT(converter.fromCmyk(0, 0, 0, 1).green(), 0.2);
    EXPECT_LT(converter.fromCmyk(1, 1, 1, 1).green(), 0.02);
    EXPECT_NE(hexText(converter.fromCmyk(0, 1, 0, 0)), QStringLiteral("#ff00ff"));
}

TEST(ColorConverter, ConvertsInkPlainlyByAFileThatIsNoProfileOfInk) {
    QTemporaryFile file;
    ASSERT_TRUE(file.open());
    file.write("no profile at all");
    file.close();
    ColorConverter converter(file.fileName());
    EXPECT_EQ(hexText(converter.fromCmyk(1, 0, 0, 0)), QStringLiteral("#00ffff"));
}

} // namespace
} // namespace dropshade
