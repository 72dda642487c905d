// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "KeyboardShortcuts/KeyField.h"

#include "widgets/Metrics.h"
#include "widgets/Painting.h"
#include "widgets/TypeScale.h"

#include <QPainter>

#include <algorithm>

namespace dropshade {
namespace {

constexpr int leastWidth = 130;

} // namespace

KeyField::KeyField(const Look& look, QWidget* parent) : Button(look, parent) {
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    setFont(textFont(TextStyle::Control));
}

QSize KeyField::sizeHint() const {
    return {leastWidth,
            std::max(metrics::control, lineHeight(TextStyle::Control) + metrics::space12)};
}

void KeyField::showWords(Words kind, const QString& words) {
    m_kind = kind;
    m_words = words;
    update();
}

void KeyField::paint(QPainter& painter) {
    if (isEnabled())
        fillRounded(painter, rect(), cornerRadius(), theme().surfaceField);
    strokeEdge(painter, rect(), cornerRadius(),
               blended(theme().lineEdge, theme().lineControl, hoverAmount()));
    painter.setFont(m_kind == Words::Placeholder ? textFont(TextStyle::Body) : font());
    const bool isFaint = m_kind == Words::Placeholder || !isEnabled();
    painter.setPen(isFaint                   ? theme().textTertiary
                   : m_kind == Words::Prompt ? theme().accentBase
                                             : theme().textPrimary);
    const QRect inner = rect().adjusted(metrics::space8, 0, -metrics::space8, 0);
    painter.drawText(inner, Qt::AlignCenter,
                     painter.fontMetrics().elidedText(m_words, Qt::ElideRight, inner.width()));
}

} // namespace dropshade
