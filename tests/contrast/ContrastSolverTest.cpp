// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "contrast/ContrastSolver.h"

#include "contrast/ContrastMetrics.h"
#include "contrast/LightnessSearch.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace dropshade {
namespace {

constexpr int pairCount = 10'000;

const SRGBColor black(0.0, 0.0, 0.0);
const SRGBColor white(1.0, 1.0, 1.0);
const SRGBColor grey77(0x77 / 255.0, 0x77 / 255.0, 0x77 / 255.0);

/// What a solver is asked, and the measure it answers by.
struct Question {
    SRGBColor moved;
    SRGBColor fixed;
    double wanted;
    bool apca;
    bool movedIsBackground;

    double measure(const SRGBColor& candidate) const {
        if (!apca)
            return contrastRatio(candidate, fixed);
        const double y = apcaLuminance(candidate);
        const double fixedY = apcaLuminance(fixed);
        return std::abs(movedIsBackground ? apcaLc(fixedY, y) : apcaLc(y, fixedY));
    }

    std::optional<SRGBColor> answer() const {
        return apca ? adjustedToMeetLc(moved, fixed, wanted, movedIsBackground)
                    : adjustedToMeetRatio(moved, fixed, wanted);
    }
};

/// Half of the colours on the 8-bit grid, one in eight grey.
SRGBColor randomColor(std::mt19937& generator) {
    std::uniform_real_distribution<double> component(0.0, 1.0);
    std::uniform_int_distribution<int> kind(0, 7);
    double red = component(generator);
    double green = component(generator);
    double blue = component(generator);
    const int drawn = kind(generator);
    if (drawn == 0)
        green = blue = red;
    const double grid = drawn % 2 == 0 ? 255.0 : 1e9;
    return {std::round(red * grid) / grid, std::round(green * grid) / grid,
            std::round(blue * grid) / grid, component(generator)};
}

Question randomQuestion(std::mt19937& generator) {
    std::uniform_int_distribution<int> coin(0, 1);
    const bool apca = coin(generator) == 1;
    std::uniform_real_distribution<double> wanted(apca ? 5.0 : 1.0, apca ? 110.0 : 15.0);
    return {randomColor(generator), randomColor(generator), wanted(generator), apca,
            coin(generator) == 1};
}

template <typename Check>
void forEachQuestion(unsigned seed, Check check) {
    std::mt19937 generator(seed);
    for (int round = 0; round < pairCount; ++round) {
        SCOPED_TRACE(testing::Message() << "seed " << seed << ", round " << round);
        check(randomQuestion(generator));
        if (testing::Test::HasFatalFailure())
            return;
    }
}

HSLFractions hslOf(const SRGBColor& color) {
    return rgbToHsl(color.red(), color.green(), color.blue());
}

TEST(ContrastSolver, AnAnswerPasses) {
    forEachQuestion(1, [](const Question& question) {
        if (const auto answer = question.answer()) {
            ASSERT_GE(question.measure(*answer), question.wanted);
        }
    });
}

TEST(ContrastSolver, AnAnswerKeepsHueSaturationAndAlpha) {
    forEachQuestion(2, [](const Question& question) {
        const auto answer = question.answer();
        if (!answer)
            return;
        ASSERT_EQ(answer->alpha(), question.moved.alpha());
        const HSLFractions before = hslOf(question.moved);
        const HSLFractions after = hslOf(*answer);
        const SRGBColor expected = hslToRgb(before.hue, before.saturation, after.lightness);
        ASSERT_NEAR(answer->red(), expected.red(), 1e-14);
        ASSERT_NEAR(answer->green(), expected.green(), 1e-14);
        ASSERT_NEAR(answer->blue(), expected.blue(), 1e-14);
        // Near black and white a hair of rounding is a large part of the range.
        if (after.lightness > 0.01 && after.lightness < 0.99 && before.saturation > 0.01) {
            ASSERT_NEAR(after.saturation, before.saturation, 1e-9);
            const double turn = std::abs(after.hue - before.hue);
            ASSERT_LT(std::min(turn, 1.0 - turn), 1e-9);
        }
    });
}

TEST(ContrastSolver, GreysStayGrey) {
    forEachQuestion(3, [](Question question) {
        const double grey = question.moved.red();
        question.moved = SRGBColor(grey, grey, grey);
        if (const auto answer = question.answer()) {
            ASSERT_EQ(answer->red(), answer->green());
            ASSERT_EQ(answer->red(), answer->blue());
        }
    });
}

TEST(ContrastSolver, ThereIsNoAnswerOnlyWhereNeitherEndPasses) {
    int none = 0;
    forEachQuestion(4, [&none](const Question& question) {
        const bool anyEnd = question.measure(black) >= question.wanted ||
                            question.measure(white) >= question.wanted;
        const bool already = question.measure(question.moved) >= question.wanted;
        ASSERT_EQ(question.answer().has_value(), anyEnd || already);
        none += anyEnd ? 0 : 1;
    });
    EXPECT_GT(none, 100);
}

TEST(ContrastSolver, APairThatPassesComesBackUntouched) {
    int untouched = 0;
    forEachQuestion(5, [&untouched](const Question& question) {
        if (question.measure(question.moved) < question.wanted)
            return;
        ++untouched;
        ASSERT_EQ(question.answer(), question.moved);
    });
    EXPECT_GT(untouched, 1000);
}

/// The lightness of the answer from one end, worked out without the solver.
std::optional<double> crossing(const Question& question, double end) {
    const HSLFractions hsl = hslOf(question.moved);
    const auto passes = [&](double lightness) {
        return question.measure(hslToRgb(hsl.hue, hsl.saturation, lightness)) >= question.wanted;
    };
    if (!passes(end))
        return std::nullopt;
    double good = end;
    double bad = hsl.lightness;
    for (int round = 0; round < 60; ++round) {
        const double middle = (good + bad) * 0.5;
        if (passes(middle))
            good = middle;
        else
            bad = middle;
    }
    return good;
}

TEST(ContrastSolver, TheNearerEndWins) {
    int bothEnds = 0;
    forEachQuestion(6, [&bothEnds](const Question& question) {
        const auto answer = question.answer();
        if (!answer || *answer == question.moved)
            return;
        const HSLFractions hsl = hslOf(question.moved);
        const auto dark = crossing(question, 0.0);
        const auto light = crossing(question, 1.0);
        bothEnds += dark && light ? 1 : 0;
        const bool takesLight = light && (!dark || *light - hsl.lightness < hsl.lightness - *dark);
        ASSERT_EQ(*answer, hslToRgb(hsl.hue, hsl.saturation, takesLight ? *light : *dark,
                                    question.moved.alpha()));
    });
    EXPECT_GT(bothEnds, 100);
}

TEST(ContrastSolver, JustShortOfTheAnswerThePairFails) {
    forEachQuestion(7, [](const Question& question) {
        const auto answer = question.answer();
        if (!answer || *answer == question.moved)
            return;
        const HSLFractions before = hslOf(question.moved);
        const double lightness = hslOf(*answer).lightness;
        const double backward = lightness < before.lightness ? 1e-9 : -1e-9;
        const double shorter =
            question.measure(hslToRgb(before.hue, before.saturation, lightness + backward));
        ASSERT_LT(shorter, question.wanted + 1e-12);
    });
}

TEST(AdjustedToMeetRatio, NothingReachesSevenAgainstMiddleGrey) {
    EXPECT_EQ(adjustedToMeetRatio(SRGBColor(0.2, 0.5, 0.9), grey77, 7.0), std::nullopt);
}

TEST(AdjustedToMeetRatio, FourAndAHalfIsAlwaysReached) {
    forEachQuestion(8, [](const Question& question) {
        const auto answer = adjustedToMeetRatio(question.moved, question.fixed, 4.5);
        ASSERT_TRUE(answer);
        ASSERT_TRUE(passesRatio(contrastRatio(*answer, question.fixed), 4.5));
        ASSERT_LT(contrastRatio(*answer, question.fixed), 21.0 + 1e-9);
    });
}

TEST(AdjustedToMeetRatio, TakesTheNearerOfTwoEndsAgainstMiddleGrey) {
    const double slightlyDark = 0.45;
    const auto darker =
        adjustedToMeetRatio(SRGBColor(slightlyDark, slightlyDark, slightlyDark), grey77, 3.0);
    ASSERT_TRUE(darker);
    EXPECT_LT(darker->red(), slightlyDark);
    const double slightlyLight = 0.55;
    const auto lighter =
        adjustedToMeetRatio(SRGBColor(slightlyLight, slightlyLight, slightlyLight), grey77, 3.0);
    ASSERT_TRUE(lighter);
    EXPECT_GT(lighter->red(), slightlyLight);
}

TEST(AdjustedToMeetRatio, AHueOfZeroStaysRedBased) {
    const auto answer = adjustedToMeetRatio(SRGBColor(0.9, 0.5, 0.5), white, 7.0);
    ASSERT_TRUE(answer);
    EXPECT_GT(answer->red(), answer->green());
    EXPECT_EQ(answer->green(), answer->blue());
}

TEST(AdjustedToMeetRatio, EndsJustAboveTheWantedValue) {
    const auto answer = adjustedToMeetRatio(SRGBColor(0.9, 0.7, 0.2, 0.5), white, 4.5);
    ASSERT_TRUE(answer);
    EXPECT_EQ(answer->alpha(), 0.5);
    EXPECT_NEAR(contrastRatio(*answer, white), 4.5, 1e-12);
    EXPECT_GE(contrastRatio(*answer, white), 4.5);
}

TEST(AdjustedToMeetLc, IgnoresTheSignOfTheWantedValue) {
    forEachQuestion(9, [](const Question& question) {
        if (!question.apca)
            return;
        ASSERT_EQ(question.answer(),
                  adjustedToMeetLc(question.moved, question.fixed, -question.wanted,
                                   question.movedIsBackground));
    });
}

TEST(AdjustedToMeetLc, MovingTextAndMovingBackgroundAreNoMirrorImages) {
    const SRGBColor moved(0.4, 0.5, 0.6);
    const auto text = adjustedToMeetLc(moved, grey77, 45.0, false);
    const auto background = adjustedToMeetLc(moved, grey77, 45.0, true);
    ASSERT_TRUE(text);
    ASSERT_TRUE(background);
    EXPECT_NE(*text, *background);
}

TEST(AdjustedToMeetLc, MayCrossToTheOtherPolarity) {
    // A text a little darker than its background has no room below.
    const SRGBColor background(0.3, 0.3, 0.3);
    const auto answer = adjustedToMeetLc(SRGBColor(0.28, 0.28, 0.28), background, 60.0, false);
    ASSERT_TRUE(answer);
    EXPECT_GT(answer->red(), background.red());
}

} // namespace
} // namespace dropshade
