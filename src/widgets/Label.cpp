// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "widgets/Label.h"

namespace dropshade {

const QColor& toneColor(const Theme& theme, Label::Tone tone) {
    switch (tone) {
    case Label::Tone::Secondary:
        return theme.textSecondary;
    case Label::Tone::Tertiary:
        return theme.textTertiary;
    case Label::Tone::Danger:
        return theme.dangerBase;
    case Label::Tone::Warning:
        return theme.stateWarning;
    case Label::Tone::Accent:
        return theme.accentBase;
    case Label::Tone::Primary:
        break;
    }
    return theme.textPrimary;
}

Label::Label(const Look& look, TextStyle style, Tone tone, const QString& words, QWidget* parent)
    : QLabel(parent), m_look(look), m_style(style), m_tone(tone) {
    setTextFormat(Qt::PlainText);
    setFont(textFont(style));
    setWords(words);
    adopt();
    connect(&look, &Look::didChange, this, &Label::adopt);
}

QSize Label::sizeHint() const {
    const QSize natural = QLabel::sizeHint();
    if (wordWrap())
        return natural;
    const QMargins margins = contentsMargins();
    return {natural.width(), lineHeight(m_style) + margins.top() + margins.bottom()};
}

QSize Label::minimumSizeHint() const {
    return {QLabel::minimumSizeHint().width(),
            wordWrap() ? lineHeight(m_style) : sizeHint().height()};
}

void Label::setTone(Tone tone) {
    m_tone = tone;
    adopt();
}

void Label::setWords(const QString& words) {
    setText(m_style == TextStyle::Overline ? words.toUpper() : words);
    setAccessibleName(words);
}

void Label::adopt() {
    QPalette colors = palette();
    colors.setColor(QPalette::WindowText, toneColor(m_look.theme(), m_tone));
    setPalette(colors);
}

} // namespace dropshade
