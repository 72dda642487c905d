// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "contrast/RulerScale.h"

#include <algorithm>
#include <cmath>

namespace dropshade {

namespace {

constexpr double mostRatio = 21.0;
constexpr double mostLc = 110.0;

QList<RulerMark> ratioMarks() {
    QList<RulerMark> marks;
    for (int ratio = 1; ratio <= static_cast<int>(mostRatio); ++ratio) {
        const bool isMinimum = ratio == 3 || ratio == 7;
        marks.append({rulerShare(ContrastAlgorithm::wcag, ratio),
                      isMinimum ? QString::number(ratio) : QString()});
    }
    marks.append({rulerShare(ContrastAlgorithm::wcag, 4.5), QStringLiteral("4.5")});
    return marks;
}

QList<RulerMark> lcMarks() {
    QList<RulerMark> marks;
    for (int lc = 0; lc <= static_cast<int>(mostLc); lc += 5) {
        const bool isMinimum = lc == 30 || lc == 45 || lc == 75;
        marks.append(
            {rulerShare(ContrastAlgorithm::apca, lc), isMinimum ? QString::number(lc) : QString()});
    }
    return marks;
}

} // namespace

double rulerShare(ContrastAlgorithm algorithm, double measure) {
    const double share = algorithm == ContrastAlgorithm::wcag
                             ? std::log(std::max(1.0, measure)) / std::log(mostRatio)
                             : std::abs(measure) / mostLc;
    return std::clamp(share, 0.0, 1.0);
}

const QList<RulerMark>& rulerMarks(ContrastAlgorithm algorithm) {
    static const QList<RulerMark> ratios = ratioMarks();
    static const QList<RulerMark> lcs = lcMarks();
    return algorithm == ContrastAlgorithm::wcag ? ratios : lcs;
}

} // namespace dropshade
