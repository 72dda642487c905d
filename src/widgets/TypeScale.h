// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QFont>

namespace dropshade {

/// What a text is for; each has a size, a weight and a line height. The last five are values, in
/// the desktop's fixed-width font without ligatures.
enum class TextStyle {
    Name,
    Heading,
    Strong,
    Control,
    Body,
    Caption,
    FieldLabel,
    MenuHeader,
    Overline, ///< In capitals; whoever shows the text sets them.
    Measure,
    ValueField,
    Value,
    ValueDigits,
    RulerFigure,
};

/// How much larger than usual the desktop's general font is, from 1 to 2.
[[nodiscard]] double desktopTextScale();

/// The font at `scale` times its usual size. A painter of device pixels passes its device pixel
/// ratio.
[[nodiscard]] QFont textFont(TextStyle style, double scale);

/// The font in logical pixels at the size that the desktop asks for.
[[nodiscard]] QFont textFont(TextStyle style);

/// The distance of two lines of that text, logical pixels, at the size that the desktop asks for.
[[nodiscard]] int lineHeight(TextStyle style);

} // namespace dropshade
