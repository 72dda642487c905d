// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "color/ColorFormat.h"
#include "color/ColorParser.h"

#include <gtest/gtest.h>

#include <array>
#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <locale>
#include <string>

namespace dropshade {
namespace {

class CommaPunctuation : public std::numpunct<char> {
protected:
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\1"; }
};

bool printfWritesACommaNow() {
    std::array<char, 8> text;
    std::snprintf(text.data(), text.size(), "%.1f", 0.5);
    return text[1] == ',';
}

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

class CLocale : public testing::Test {
protected:
    void TearDown() override {
        std::setlocale(LC_ALL, "C");
        std::locale::global(std::locale::classic());
    }

    // Installed, or compiled for this test where the C library's locale sources are at hand.
    static bool setGerman() {
        if (std::setlocale(LC_ALL, "de_DE.UTF-8"))
            return true;
        const std::string folder = testing::TempDir() + "dropshade-locale";
        const std::string command = "mkdir -p '" + folder +
                                    "' && localedef --no-archive -i de_DE -f UTF-8 '" + folder +
                                    "/de_DE.UTF-8' >/dev/null 2>&1";
        if (std::system(command.c_str()) != 0)
            return false;
        setenv("LOCPATH", folder.c_str(), 1);
        return std::setlocale(LC_ALL, "de_DE.UTF-8") != nullptr;
    }
};

TEST_F(CLocale, OfGermanChangesNoText) {
    if (!setGerman())
        GTEST_SKIP() << "no German locale here, and none can be compiled";
    ASSERT_TRUE(printfWritesACommaNow());
    expectFullStopsEverywhere();
}

TEST(CppLocale, WithADecimalCommaChangesNoText) {
    const std::locale before =
        std::locale::global(std::locale(std::locale::classic(), new CommaPunctuation));
    expectFullStopsEverywhere();
    std::locale::global(before);
}

} // namespace
} // namespace dropshade
