// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "color/ColorFormat.h"
#include "color/ColorParser.h"

#include "support/CommaLocales.h"

#include <gtest/gtest.h>

namespace dropshade {
namespace {

void expectFullStopsEverywhere() {
    const SRGBColor color(1.0, 0.0, 128.0 / 255.0, 0.25);
    EXPECT_EQ(formatted(color, ColorFormat::cssRGBA, {}), "rgb(255 0 128 / 0.25)");
    EXPECT_EQ(formatted(color, ColorFormat::uiColorRGB, {}),
              "UIColor(red: 1.00, green: 0.00, blue: 0.50, alpha: 0.25)");
    EXPECT_EQ(formatted(SRGBColor(0.125, 0.125, 0.125), ColorFormat::uiColorRGB, {}),
              "UIColor(red: 0.12, green: 0.12, blue: 0.12, alpha: 1.00)");
    EXPECT_EQ(percentText(0.1234), "12.3%");
    EXPECT_EQ(parseColor("rgb(127.5 0 0 / 0.5)"), SRGBColor(0.5, 0, 0, 0.5));
    EXPECT_EQ(parseColor("rgb(12.75e1 0x.8 0 / 0.5)"), SRGBColor(0.5, 0.5 / 255.0, 0, 0.5));
    EXPECT_EQ(parseColor("rgb(127,5 0 0)"), std::nullopt);
}

TEST(CLocale, OfGermanChangesNoText) {
    const GermanCLocale german;
    ASSERT_TRUE(german.isSet()) << "no German locale here, and none can be compiled";
    expectFullStopsEverywhere();
}

TEST(CppLocale, WithADecimalCommaChangesNoText) {
    const CommaCppLocale commas;
    expectFullStopsEverywhere();
}

} // namespace
} // namespace dropshade
