// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "contrast/ContrastVerdicts.h"

#include "contrast/ContrastMetrics.h"
#include "contrast/RulerScale.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace dropshade {
namespace {

constexpr auto wcag = ContrastAlgorithm::wcag;
constexpr auto apca = ContrastAlgorithm::apca;

QStringList tooltips(ContrastAlgorithm algorithm, double ratio, double lc) {
    QStringList result;
    for (const SampleLine& line : ContrastVerdicts::sampleLines(algorithm, ratio, lc)) {
        for (const PillVerdict& pill : line.pills)
            result.append(pill.tooltip);
    }
    return result;
}

QList<bool> passing(ContrastAlgorithm algorithm, double ratio, double lc) {
    QList<bool> result;
    for (const SampleLine& line : ContrastVerdicts::sampleLines(algorithm, ratio, lc)) {
        for (const PillVerdict& pill : line.pills)
            result.append(pill.passes);
    }
    return result;
}

QStringList enabledFixes(ContrastAlgorithm algorithm, double ratio, double lc) {
    QStringList result;
    for (const ContrastFixGroup& group : ContrastVerdicts::fixGroups(algorithm, ratio, lc)) {
        for (const ContrastFix& fix : group.fixes) {
            if (fix.isEnabled)
                result.append(fix.title);
        }
    }
    return result;
}

TEST(ContrastVerdicts, ThePillsOfARatioSayItInAWholeSentence) {
    EXPECT_EQ(
        tooltips(wcag, 4.58, 0.0),
        (QStringList{
            QStringLiteral("Normal text (16pt regular): AA 4.58:1 meets the 4.5:1 minimum."),
            QStringLiteral("Normal text (16pt regular): AAA 4.58:1 fails the 7:1 minimum."),
            QStringLiteral("Large text (24pt semibold): AA 4.58:1 meets the 3:1 minimum."),
            QStringLiteral("Large text (24pt semibold): AAA 4.58:1 meets the 4.5:1 minimum.")}));
}

TEST(ContrastVerdicts, ThePillsOfAnLcSayItsMagnitudeCutToAWholeNumber) {
    EXPECT_EQ(
        tooltips(apca, 0.0, -74.9),
        (QStringList{
            QStringLiteral("Normal text: Lc 74 is below the APCA Bronze minimum of Lc 75."),
            QStringLiteral("Large text: Lc 74 meets the APCA Bronze minimum of Lc 45."),
            QStringLiteral("Graphics and UI: Lc 74 meets the APCA Bronze minimum of Lc 30.")}));
}

TEST(ContrastVerdicts, BlackOnWhitePassesEverything) {
    EXPECT_FALSE(passing(wcag, 21.0, 106.0).contains(false));
    EXPECT_FALSE(passing(apca, 21.0, 106.0).contains(false));
    EXPECT_TRUE(enabledFixes(wcag, 21.0, 106.0).isEmpty());
    EXPECT_TRUE(enabledFixes(apca, 21.0, 106.0).isEmpty());
}

TEST(ContrastVerdicts, TwoEqualColorsFailEverythingAndEveryFixIsThere) {
    EXPECT_FALSE(passing(wcag, 1.0, 0.0).contains(true));
    EXPECT_FALSE(passing(apca, 1.0, 0.0).contains(true));
    EXPECT_EQ(enabledFixes(wcag, 1.0, 0.0).size(), 4);
    EXPECT_EQ(
        enabledFixes(apca, 1.0, 0.0),
        (QStringList{QStringLiteral("Normal text (Lc 75)"), QStringLiteral("Large text (Lc 45)"),
                     QStringLiteral("Graphics and UI (Lc 30)")}));
}

TEST(ContrastVerdicts, ARatioOfExactlyTheMinimumPassesAndNeedsNoFix) {
    EXPECT_EQ(passing(wcag, 4.5, 0.0), (QList<bool>{true, false, true, true}));
    EXPECT_EQ(enabledFixes(wcag, 4.5, 0.0), QStringList{QStringLiteral("AAA (7:1)")});
}

TEST(ContrastVerdicts, AWordAndItsVerdictMayDisagreeAtTheThirdDecimal) {
    const auto lines = ContrastVerdicts::sampleLines(wcag, 4.4999, 0.0);
    EXPECT_FALSE(lines[0].pills[0].passes);
    EXPECT_TRUE(lines[0].pills[0].tooltip.contains(QStringLiteral("4.50:1 fails")));
}

TEST(ContrastVerdicts, FixesStandUnderTheirTitlesAndWantTheirMinimums) {
    const auto rows = [](ContrastAlgorithm algorithm) {
        QStringList result;
        for (const ContrastFixGroup& group : ContrastVerdicts::fixGroups(algorithm, 1.0, 0.0)) {
            result.append(group.title);
            for (const ContrastFix& fix : group.fixes)
                result.append(QStringLiteral("%1 = %2").arg(fix.title).arg(fix.wanted));
        }
        return result;
    };
    EXPECT_EQ(rows(wcag),
              (QStringList{QStringLiteral("Fix for Normal Text"),
                           QStringLiteral("AA (4.5:1) = 4.5"), QStringLiteral("AAA (7:1) = 7"),
                           QStringLiteral("Fix for Large Text (≥ 18pt or ≥ 14pt bold)"),
                           QStringLiteral("AA (3:1) = 3"), QStringLiteral("AAA (4.5:1) = 4.5")}));
    EXPECT_EQ(rows(apca), (QStringList{QStringLiteral("Fix for APCA"),
                                       QStringLiteral("Normal text (Lc 75) = 75"),
                                       QStringLiteral("Large text (Lc 45) = 45"),
                                       QStringLiteral("Graphics and UI (Lc 30) = 30")}));
}

TEST(ContrastVerdicts, AFixIsThereBelowItsMinimumWhateverThePolarity) {
    EXPECT_EQ(enabledFixes(apca, 1.0, -44.9).size(), 2);
    EXPECT_EQ(enabledFixes(apca, 1.0, -45.0), QStringList{QStringLiteral("Normal text (Lc 75)")});
    EXPECT_EQ(passing(apca, 1.0, -45.0), (QList<bool>{false, true, true}));
    EXPECT_EQ(enabledFixes(wcag, 2.999, 0.0).size(), 4);
    EXPECT_EQ(enabledFixes(wcag, 3.0, 0.0).size(), 3);
    EXPECT_TRUE(enabledFixes(wcag, 7.0, 0.0).isEmpty());
}

TEST(ContrastVerdicts, TheSampleHasItsLinesInTheirSizesAndWeights) {
    const auto lines = [](ContrastAlgorithm algorithm) {
        QStringList result;
        for (const SampleLine& line : ContrastVerdicts::sampleLines(algorithm, 21.0, 106.0)) {
            QStringList words{line.text, QString::number(line.sizePt),
                              line.weight == fontWeight::semibold ? QStringLiteral("semibold")
                                                                  : QString::number(line.weight)};
            for (const PillVerdict& pill : line.pills)
                words.append(pill.word);
            result.append(words.join(u' '));
        }
        return result;
    };
    EXPECT_EQ(lines(wcag), (QStringList{QStringLiteral("Normal text 16 0 AA AAA"),
                                        QStringLiteral("Large text 24 semibold AA AAA")}));
    EXPECT_EQ(lines(apca), (QStringList{QStringLiteral("Normal text 16 0 Lc 75"),
                                        QStringLiteral("Large text 24 semibold Lc 45"),
                                        QStringLiteral("Graphics and UI 13 0 Lc 30")}));
}

TEST(RulerScale, PutsRatiosOnALogarithmicScale) {
    EXPECT_EQ(rulerShare(wcag, 1.0), 0.0);
    EXPECT_EQ(rulerShare(wcag, 21.0), 1.0);
    EXPECT_NEAR(rulerShare(wcag, 3.0), 0.3608, 1e-4);
    EXPECT_NEAR(rulerShare(wcag, 9.0), 2.0 * rulerShare(wcag, 3.0), 1e-12);
}

TEST(RulerScale, PutsLcByItsMagnitude) {
    EXPECT_EQ(rulerShare(apca, 55.0), 0.5);
    EXPECT_EQ(rulerShare(apca, -55.0), 0.5);
    EXPECT_EQ(rulerShare(apca, -120.0), 1.0);
}

TEST(RulerScale, MarksTheMinimums) {
    const auto figures = [](ContrastAlgorithm algorithm) {
        QStringList result;
        for (const RulerMark& mark : rulerMarks(algorithm)) {
            if (!mark.figure.isEmpty())
                result.append(mark.figure);
        }
        std::sort(result.begin(), result.end());
        return result;
    };
    EXPECT_EQ(figures(wcag),
              (QStringList{QStringLiteral("3"), QStringLiteral("4.5"), QStringLiteral("7")}));
    EXPECT_EQ(figures(apca),
              (QStringList{QStringLiteral("30"), QStringLiteral("45"), QStringLiteral("75")}));
}

} // namespace
} // namespace dropshade
