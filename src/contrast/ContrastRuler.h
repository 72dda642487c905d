// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "contrast/ContrastAlgorithm.h"
#include "widgets/Look.h"

#include <QWidget>

namespace dropshade {

/// The measure on a ruler with its minimums. Decoration: the number beside it says it all.
class ContrastRuler : public QWidget {
    Q_OBJECT

public:
    explicit ContrastRuler(const Look& look, QWidget* parent = nullptr);

    void setMeasure(ContrastAlgorithm algorithm, double measure);

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const Look& m_look;
    ContrastAlgorithm m_algorithm = ContrastAlgorithm::wcag;
    double m_measure = 1.0;
};

} // namespace dropshade
