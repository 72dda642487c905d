// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "contrast/ContrastAlgorithm.h"

#include <QCoreApplication>
#include <QList>
#include <QString>

namespace dropshade {

/// One verdict on one line of the sample.
struct PillVerdict {
    QString word; ///< "AA", "AAA" or "Lc 75".
    bool passes = false;
    QString tooltip;
};

/// One line of the sample card.
struct SampleLine {
    QString text;
    double sizePt = 0.0;
    double weight = 0.0; ///< On the scale of `fontWeight`.
    QList<PillVerdict> pills;
};

/// One way to repair the pair, as a menu offers it.
struct ContrastFix {
    QString title;
    double wanted = 0.0; ///< A ratio, or an Lc.
    bool isEnabled = false;
};

/// Fixes under one title.
struct ContrastFixGroup {
    QString title;
    QList<ContrastFix> fixes;
};

/// What the contrast window says of a pair, in words.
class ContrastVerdicts {
    Q_DECLARE_TR_FUNCTIONS(ContrastVerdicts)

public:
    /// `ratio` counts under `wcag`, `lc` under `apca`.
    [[nodiscard]] static QList<SampleLine> sampleLines(ContrastAlgorithm algorithm, double ratio,
                                                       double lc);

    [[nodiscard]] static QList<ContrastFixGroup> fixGroups(ContrastAlgorithm algorithm,
                                                           double ratio, double lc);

private:
    [[nodiscard]] static SampleLine wcagLine(const QString& text, const QString& roleLabel,
                                             double sizePt, double weight, double ratio);
    [[nodiscard]] static PillVerdict wcagPill(const QString& line, const QString& level,
                                              double ratio, double minimum);
    [[nodiscard]] static SampleLine apcaLine(const QString& name, double threshold, double sizePt,
                                             double weight, double lc);
    [[nodiscard]] static QString weightWord(double weight);
};

} // namespace dropshade
