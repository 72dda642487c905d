// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "widgets/Theme.h"

#include "contrast/ContrastMetrics.h"

#include <gtest/gtest.h>

#include <vector>

namespace dropshade {
namespace {

using Token = QColor Theme::*;

/// What is drawn, on each of these grounds in turn; a ground is its layers from below.
struct Pairing {
    Token front;
    std::vector<std::vector<Token>> grounds;
};

double mixed(double below, double above, double alpha) {
    return below * (1.0 - alpha) + above * alpha;
}

SRGBColor layered(const Theme& theme, const std::vector<Token>& layers) {
    SRGBColor result;
    for (const Token layer : layers) {
        const QColor color = theme.*layer;
        const double alpha = color.alphaF();
        result = SRGBColor(mixed(result.red(), color.redF(), alpha),
                           mixed(result.green(), color.greenF(), alpha),
                           mixed(result.blue(), color.blueF(), alpha));
    }
    return result;
}

double leastRatio(const Theme& theme, const std::vector<Pairing>& pairings) {
    double least = 21.0;
    for (const Pairing& pairing : pairings) {
        for (std::vector<Token> ground : pairing.grounds) {
            const SRGBColor below = layered(theme, ground);
            ground.push_back(pairing.front);
            least = std::min(least, contrastRatio(below, layered(theme, ground)));
        }
    }
    return least;
}

const Token window = &Theme::surfaceWindow;
const Token raised = &Theme::surfaceRaised;
const Token field = &Theme::surfaceField;
const Token button = &Theme::surfaceButton;
const Token sunken = &Theme::surfaceSunken;
const Token hover = &Theme::fillHover;
const Token pressed = &Theme::fillPressed;
const Token soft = &Theme::accentSoft;

const std::vector<std::vector<Token>> everyGround = {
    {window},        {raised},          {field},        {window, hover}, {window, pressed},
    {raised, hover}, {raised, pressed}, {field, hover}, {field, pressed}};

const std::vector<Pairing> texts = {
    {&Theme::textPrimary, everyGround},
    {&Theme::textPrimary,
     {{button}, {button, hover}, {button, pressed}, {sunken, hover}, {sunken, pressed}}},
    {&Theme::textPrimary,
     {{&Theme::surfaceSegment}, {window, soft}, {field, soft}, {raised, soft}}},
    {&Theme::textPrimary, {{window, &Theme::accentFaint}}},
    {&Theme::textSecondary, everyGround},
    {&Theme::textSecondary, {{button}, {sunken}}},
    {&Theme::textTertiary, {{window}, {raised}, {field}, {sunken}}},
    {&Theme::dangerBase, everyGround},
    {&Theme::accentBase, {{window}, {raised}, {field}, {window, &Theme::accentFaint}}},
    {&Theme::textOnPlate, {{&Theme::surfacePlate}}},
    {&Theme::textOnInk, {{&Theme::inkBase}, {&Theme::inkHover}, {&Theme::inkPressed}}},
    {&Theme::textOnDanger, {{&Theme::dangerBase}, {&Theme::dangerHover}, {&Theme::dangerPressed}}},
    {&Theme::textOnAccent, {{&Theme::accentBase}}},
    {&Theme::stateWarning, {{window}}},
};

const std::vector<Pairing> graphics = {
    {&Theme::lineControl, {{window}, {raised}, {field}, {sunken}}},
    {&Theme::accentBase, {{window}, {raised}, {field}, {window, soft}, {window, hover}}},
    {&Theme::statePass, {{window}}},
    {&Theme::stateFail, {{window}}},
    {&Theme::toggleKnobOn, {{&Theme::accentBase}}},
};

class ThemeContrastTest : public testing::TestWithParam<Theme::Scheme> {
protected:
    Theme m_theme = Theme::of(GetParam());
};

TEST_P(ThemeContrastTest, EveryTextIsReadableOnEveryGroundItIsMeantFor) {
    EXPECT_GE(leastRatio(m_theme, texts), 4.5);
}

TEST_P(ThemeContrastTest, EveryShapeThatMeansSomethingStandsOutFromItsGround) {
    EXPECT_GE(leastRatio(m_theme, graphics), 3.0);
}

TEST_P(ThemeContrastTest, GreysHaveNoHue) {
    for (const Token grey :
         {window, raised, field, button, sunken, &Theme::textPrimary, &Theme::textSecondary,
          &Theme::textTertiary, &Theme::inkBase, &Theme::lineControl, &Theme::surfacePlate}) {
        const QColor color = m_theme.*grey;
        EXPECT_EQ(color.red(), color.green());
        EXPECT_EQ(color.green(), color.blue());
    }
}

TEST_P(ThemeContrastTest, HighContrastDrawsEdgesThatCanBeSeen) {
    const Theme high = Theme::of(GetParam(), Theme::Contrast::High);
    EXPECT_GE(leastRatio(high, {{&Theme::lineEdge, {{window}, {field}}},
                                {&Theme::lineHairline, {{window}}},
                                {&Theme::lineSwatch, {{window}}}}),
              3.0);
    EXPECT_EQ(high.textPrimary, m_theme.textPrimary);
}

INSTANTIATE_TEST_SUITE_P(Schemes, ThemeContrastTest,
                         testing::Values(Theme::Scheme::Light, Theme::Scheme::Dark),
                         [](const auto& scheme) {
                             return scheme.param == Theme::Scheme::Dark ? "Dark" : "Light";
                         });

} // namespace
} // namespace dropshade
