// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "widgets/Pill.h"

#include "widgets/Icon.h"
#include "widgets/Metrics.h"
#include "widgets/Painting.h"
#include "widgets/ToolTip.h"
#include "widgets/TypeScale.h"

#include <QFontMetrics>

#include <algorithm>

namespace dropshade {

namespace {

constexpr int leftPadding = 6;
constexpr int rightPadding = 8;
constexpr int iconSide = 14;
constexpr int iconGap = 5;

QFont wordFont() {
    QFont font = textFont(TextStyle::Caption);
    font.setWeight(QFont::DemiBold);
    return font;
}

} // namespace

Pill::Pill(const Look& look, QWidget* parent) : QLabel(parent), m_look(look) {
    setFont(wordFont());
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    ToolTip::installOn(*this, look);
    connect(&look, &Look::didChange, this, qOverload<>(&QWidget::update));
}

void Pill::setVerdict(const QString& word, bool passes, const QString& sentence) {
    m_passes = passes;
    setText(word);
    setToolTip(sentence);
    setAccessibleName(sentence);
    update();
}

QSize Pill::sizeHint() const {
    const int word = QFontMetrics(font()).horizontalAdvance(text());
    return {leftPadding + iconSide + iconGap + word + rightPadding,
            std::max(metrics::pill, lineHeight(TextStyle::Caption) + metrics::space8)};
}

void Pill::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const Theme& theme = m_look.theme();
    fillRounded(painter, rect(), metrics::radiusControl, theme.surfaceWindow);
    strokeEdge(painter, rect(), metrics::radiusControl, theme.lineEdge);
    painter.drawPixmap(leftPadding, (height() - iconSide) / 2,
                       iconPixmap(m_passes ? Icon::CircleCheck : Icon::CircleX,
                                  m_passes ? theme.statePass : theme.stateFail, iconSide,
                                  devicePixelRatioF()));
    painter.setFont(font());
    painter.setPen(m_passes ? theme.textPrimary : theme.textSecondary);
    painter.drawText(rect().adjusted(leftPadding + iconSide + iconGap, 0, 0, 0),
                     Qt::AlignVCenter | Qt::AlignLeft, text());
}

} // namespace dropshade
