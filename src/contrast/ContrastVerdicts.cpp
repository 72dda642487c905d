// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "contrast/ContrastVerdicts.h"

#include "contrast/ContrastDisplay.h"
#include "contrast/ContrastMetrics.h"

namespace dropshade {

namespace {

constexpr double normalSize = 16.0;
constexpr double largeSize = 24.0;
constexpr double graphicsSize = 13.0;

/// A size or a minimum: whole, or with one decimal.
QString shortNumber(double number) {
    return QString::fromStdString(formatThreshold(number));
}

QString wholeLc(double lc) {
    return QString::number(wholeLcMagnitude(lc));
}

} // namespace

QString ContrastVerdicts::weightWord(double weight) {
    if (weight >= fontWeight::bold)
        return tr("bold", "Font weight");
    if (weight >= fontWeight::semibold)
        return tr("semibold", "Font weight");
    if (weight >= fontWeight::medium)
        return tr("medium", "Font weight");
    return tr("regular", "Font weight");
}

PillVerdict ContrastVerdicts::wcagPill(const QString& line, const QString& level, double ratio,
                                       double minimum) {
    const bool passes = passesRatio(ratio, minimum);
    const QString verb =
        passes ? tr("meets", "WCAG verdict — pass") : tr("fails", "WCAG verdict — fail");
    //: %1 a line's description, %2 AA or AAA, %3 the ratio, %4 meets or fails, %5 the minimum
    const QString tooltip = tr("%1: %2 %3:1 %4 the %5:1 minimum.", "WCAG line badge tooltip")
                                .arg(line, level, QString::fromStdString(formatRatioNumber(ratio)),
                                     verb, shortNumber(minimum));
    return {level, passes, tooltip};
}

SampleLine ContrastVerdicts::wcagLine(const QString& text, const QString& roleLabel, double sizePt,
                                      double weight, double ratio) {
    const QString description = roleLabel + QStringLiteral(" (") + shortNumber(sizePt) +
                                QStringLiteral("pt ") + weightWord(weight) + u')';
    const WCAGThresholds minimums = wcagThresholds(sizePt, weight);
    return {text,
            sizePt,
            weight,
            {wcagPill(description, QStringLiteral("AA"), ratio, minimums.aa),
             wcagPill(description, QStringLiteral("AAA"), ratio, minimums.aaa)}};
}

SampleLine ContrastVerdicts::apcaLine(const QString& name, double threshold, double sizePt,
                                      double weight, double lc) {
    const bool passes = passesLc(lc, threshold);
    const QString minimum = wholeLc(threshold);
    //: %1 a tier's name, %2 and %3 whole numbers
    const QString sentence = passes ? tr("%1: Lc %2 meets the APCA Bronze minimum of Lc %3.",
                                         "APCA tier pill tooltip — pass")
                                    : tr("%1: Lc %2 is below the APCA Bronze minimum of Lc %3.",
                                         "APCA tier pill tooltip — fail");
    return {name,
            sizePt,
            weight,
            {{QStringLiteral("Lc ") + minimum, passes, sentence.arg(name, wholeLc(lc), minimum)}}};
}

QList<SampleLine> ContrastVerdicts::sampleLines(ContrastAlgorithm algorithm, double ratio,
                                                double lc) {
    if (algorithm == ContrastAlgorithm::wcag)
        return {wcagLine(tr("Normal text", "WCAG normal-text sample"),
                         tr("Normal text", "WCAG normal-text role label"), normalSize,
                         fontWeight::regular, ratio),
                wcagLine(tr("Large text", "WCAG large-text sample"),
                         tr("Large text", "WCAG large-text role label"), largeSize,
                         fontWeight::semibold, ratio)};
    return {apcaLine(tr("Normal text", "APCA tier — fluent body reading (Lc 75 minimum)"),
                     apcaTiers[0].minimumLc, normalSize, fontWeight::regular, lc),
            apcaLine(tr("Large text", "APCA tier — large text and headings"),
                     apcaTiers[1].minimumLc, largeSize, fontWeight::semibold, lc),
            apcaLine(tr("Graphics and UI", "APCA tier — icons, dividers, borders, UI components"),
                     apcaTiers[2].minimumLc, graphicsSize, fontWeight::regular, lc)};
}

QList<ContrastFixGroup> ContrastVerdicts::fixGroups(ContrastAlgorithm algorithm, double ratio,
                                                    double lc) {
    if (algorithm == ContrastAlgorithm::apca) {
        const auto fix = [lc](const QString& title, double wanted) {
            return ContrastFix{title, wanted, !passesLc(lc, wanted)};
        };
        return {{tr("Fix for APCA", "Action menu section"),
                 {fix(tr("Normal text (Lc 75)", "APCA fix item — normal/body text minimum"),
                      apcaTiers[0].minimumLc),
                  fix(tr("Large text (Lc 45)", "APCA fix item — large text minimum"),
                      apcaTiers[1].minimumLc),
                  fix(tr("Graphics and UI (Lc 30)", "APCA fix item — graphics and UI minimum"),
                      apcaTiers[2].minimumLc)}}};
    }
    const auto fix = [ratio](const QString& title, double wanted) {
        return ContrastFix{title, wanted, !passesRatio(ratio, wanted)};
    };
    return {
        {tr("Fix for Normal Text", "Action menu section"),
         {fix(tr("AA (4.5:1)", "WCAG fix item"), 4.5), fix(tr("AAA (7:1)", "WCAG fix item"), 7.0)}},
        {tr("Fix for Large Text (≥ 18pt or ≥ 14pt bold)", "Action menu section"),
         {fix(tr("AA (3:1)", "WCAG fix item"), 3.0),
          fix(tr("AAA (4.5:1)", "WCAG fix item"), 4.5)}}};
}

} // namespace dropshade
