// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "contrast/ContrastRuler.h"

#include "contrast/RulerScale.h"
#include "widgets/Painting.h"
#include "widgets/TypeScale.h"

#include <cmath>

namespace dropshade {

namespace {

constexpr double lineTop = 7.0;
constexpr double markLength = 4.0;
constexpr double minimumLength = 8.0;
constexpr double barWidth = 3.0;
constexpr double needleWidth = 3.0;
constexpr double needleHeight = 15.0;
constexpr int figureTop = 17;

} // namespace

ContrastRuler::ContrastRuler(const Look& look, QWidget* parent) : QWidget(parent), m_look(look) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    connect(&look, &Look::didChange, this, qOverload<>(&QWidget::update));
}

void ContrastRuler::setMeasure(ContrastAlgorithm algorithm, double measure) {
    m_algorithm = algorithm;
    m_measure = measure;
    update();
}

QSize ContrastRuler::sizeHint() const {
    return {388, figureTop + lineHeight(TextStyle::RulerFigure)};
}

void ContrastRuler::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const Theme& theme = m_look.theme();
    const double length = width() - 1.0;
    painter.fillRect(QRectF(0.0, lineTop, width(), 1.0), theme.lineControl);
    painter.setFont(textFont(TextStyle::RulerFigure));
    for (const RulerMark& mark : rulerMarks(m_algorithm)) {
        const double x = std::round(mark.share * length);
        const bool isMinimum = !mark.figure.isEmpty();
        painter.fillRect(QRectF(x, lineTop + 1.0, 1.0, isMinimum ? minimumLength : markLength),
                         isMinimum ? theme.textPrimary : theme.lineControl);
        if (isMinimum) {
            painter.setPen(theme.textSecondary);
            painter.drawText(QRectF(x - 30.0, figureTop, 61.0, height() - figureTop),
                             Qt::AlignHCenter | Qt::AlignTop, mark.figure);
        }
    }
    const double end = rulerShare(m_algorithm, m_measure) * length;
    fillRounded(painter, QRectF(0.0, lineTop - 1.0, end, barWidth), 1.0, theme.textPrimary);
    fillRounded(painter,
                QRectF(end - needleWidth / 2.0 + 0.5, lineTop + 0.5 - needleHeight / 2.0,
                       needleWidth, needleHeight),
                1.0, theme.textPrimary);
}

} // namespace dropshade
