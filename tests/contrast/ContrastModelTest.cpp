// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "contrast/ContrastModel.h"

#include "contrast/ContrastDisplay.h"

#include <gtest/gtest.h>

namespace dropshade {
namespace {

using Target = ContrastModel::SwatchTarget;

const SRGBColor black(0, 0, 0);
const SRGBColor white(1, 1, 1);
const SRGBColor grey(0x77 / 255.0, 0x77 / 255.0, 0x77 / 255.0);

class ContrastModelTest : public testing::Test {
protected:
    LastContrastPair m_last;
    int m_beeps = 0;
    ContrastModel m_model{m_last, [this] { ++m_beeps; }};
    int m_changes = 0;

    void SetUp() override {
        QObject::connect(&m_model, &ContrastModel::colorsDidChange, [this] { ++m_changes; });
    }
};

TEST_F(ContrastModelTest, AFirstOpeningIsBlackOnWhite) {
    EXPECT_EQ(m_model.bgColor(), white);
    EXPECT_EQ(m_model.fgColor(), black);
    EXPECT_EQ(formatRatio(m_model.ratio()), "21:1");
    EXPECT_EQ(formatLc(m_model.lc()), "Lc 106");
}

TEST_F(ContrastModelTest, ANewWindowBringsThePairBack) {
    m_model.setBgColor(grey);
    m_model.setFgColor(white);
    const ContrastModel next(m_last, [] {});
    EXPECT_EQ(next.bgColor(), grey);
    EXPECT_EQ(next.fgColor(), white);
}

TEST_F(ContrastModelTest, OnlyAnotherColorIsToldOf) {
    m_model.setBgColor(white);
    m_model.setFgColor(black);
    EXPECT_EQ(m_changes, 0);
    m_model.setColor(Target::foreground, grey);
    EXPECT_EQ(m_changes, 1);
}

TEST_F(ContrastModelTest, SwappingKeepsTheRatioAndChangesSignAndMagnitudeOfLc) {
    const double ratio = m_model.ratio();
    m_model.swapColors();
    EXPECT_EQ(m_model.ratio(), ratio);
    EXPECT_EQ(formatLc(m_model.lc()), "Lc -107");
    EXPECT_EQ(m_changes, 1);
}

TEST_F(ContrastModelTest, AFixMovesTheTargetAlone) {
    m_model.setFgColor(SRGBColor(0.8, 0.4, 0.4));
    EXPECT_TRUE(m_model.applyRatioFix(Target::foreground, 4.5));
    EXPECT_GE(m_model.ratio(), 4.5);
    EXPECT_EQ(m_model.bgColor(), white);
    m_model.setFgColor(SRGBColor(0.3, 0.1, 0.1));
    m_model.setBgColor(SRGBColor(0.6, 0.5, 0.5));
    EXPECT_TRUE(m_model.applyLcFix(Target::background, 75.0));
    EXPECT_EQ(m_model.fgColor(), SRGBColor(0.3, 0.1, 0.1));
    EXPECT_GE(std::abs(m_model.lc()), 75.0);
}

TEST_F(ContrastModelTest, AFixForLcTakesTheForegroundForTheTextWhicheverOfTheTwoMoves) {
    for (const Target target : {Target::foreground, Target::background}) {
        m_model.setFgColor(SRGBColor(0.45, 0.3, 0.3));
        m_model.setBgColor(SRGBColor(0.5, 0.6, 0.5));
        EXPECT_TRUE(m_model.applyLcFix(target, 45.0));
        // Measured the other way round, this pair would end some way above or below.
        EXPECT_GE(std::abs(m_model.lc()), 45.0);
        EXPECT_LT(std::abs(m_model.lc()), 45.0 + 1e-9);
    }
}

TEST_F(ContrastModelTest, AFixWithoutASolutionBeepsAndLeavesThePairAsItWas) {
    m_model.setBgColor(grey);
    m_model.setFgColor(SRGBColor(0.5, 0.5, 0.5));
    m_changes = 0;
    EXPECT_FALSE(m_model.applyRatioFix(Target::foreground, 7.0));
    EXPECT_EQ(m_beeps, 1);
    EXPECT_EQ(m_changes, 0);
    EXPECT_EQ(m_model.fgColor(), SRGBColor(0.5, 0.5, 0.5));
}

TEST_F(ContrastModelTest, APairThatPassesIsLeftAloneInSilence) {
    EXPECT_TRUE(m_model.applyRatioFix(Target::background, 7.0));
    EXPECT_EQ(m_changes, 0);
    EXPECT_EQ(m_beeps, 0);
}

} // namespace
} // namespace dropshade
