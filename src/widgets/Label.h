// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/Look.h"
#include "widgets/TypeScale.h"

#include <QLabel>

namespace dropshade {

/// Words in one of the theme's text styles. A text in capitals is drawn so; screen readers get it
/// as it was given.
class Label : public QLabel {
    Q_OBJECT

public:
    enum class Tone { Primary, Secondary, Tertiary, Danger, Warning, Accent };

    Label(const Look& look, TextStyle style, Tone tone, const QString& words = QString(),
          QWidget* parent = nullptr);

    void setTone(Tone tone);

    /// A single line is as high as its text style says, whatever room the font leaves around it.
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
    void setWords(const QString& words);

private:
    void adopt();

    const Look& m_look;
    TextStyle m_style;
    Tone m_tone;
};

/// The colour of words in that tone.
[[nodiscard]] const QColor& toneColor(const Theme& theme, Label::Tone tone);

} // namespace dropshade
