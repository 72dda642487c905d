// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "contrast/ContrastVerdicts.h"

#include "color/SRGBColor.h"
#include "widgets/Look.h"

#include <QWidget>

class QVBoxLayout;

namespace dropshade {

class Pill;

/// Text in the one colour on a ground of the other, a line for each size, with its verdicts.
class SamplePreviewCard : public QWidget {
    Q_OBJECT

public:
    explicit SamplePreviewCard(const Look& look, QWidget* parent = nullptr);

    void setSample(const SRGBColor& background, const SRGBColor& foreground,
                   const QList<SampleLine>& lines);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    class Line;

    void rebuild(const QList<SampleLine>& lines);

    const Look& m_look;
    SRGBColor m_background;
    QVBoxLayout* m_column;
    QList<Line*> m_lines;
};

} // namespace dropshade
