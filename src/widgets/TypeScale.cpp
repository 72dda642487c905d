// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "widgets/TypeScale.h"

#include <QFontDatabase>
#include <QFontInfo>

#include <algorithm>
#include <array>

namespace dropshade {

namespace {

struct TextStyleRow {
    int size;
    int line;
    int weight;
    double tracking;
    QFontDatabase::SystemFont family;
};

constexpr auto words = QFontDatabase::GeneralFont;
constexpr auto values = QFontDatabase::FixedFont;

/// In the order of `TextStyle`.
constexpr std::array<TextStyleRow, 14> rows = {{
    {20, 28, 700, -0.2, words},
    {15, 20, 600, 0.0, words},
    {13, 20, 600, 0.0, words},
    {13, 20, 500, 0.0, words},
    {13, 20, 400, 0.0, words},
    {12, 16, 400, 0.0, words},
    {12, 16, 500, 0.0, words},
    {11, 16, 600, 0.0, words},
    {11, 16, 600, 0.66, words},
    {32, 40, 500, -1.28, values},
    {13, 20, 400, 0.0, values},
    {12, 16, 400, -0.1, values},
    {12, 16, 500, -0.1, values},
    {11, 16, 400, 0.0, values},
}};

/// What desktops mean by a font of the usual size: 10 points at 96 to the inch.
constexpr double usualFontPixels = 13.34;

const TextStyleRow& row(TextStyle style) {
    return rows[static_cast<std::size_t>(style)];
}

} // namespace

double desktopTextScale() {
    const QFontInfo font(QFontDatabase::systemFont(QFontDatabase::GeneralFont));
    const double scale = font.pixelSize() / usualFontPixels;
    // A pixel more or less is taste; beyond it somebody needs large letters.
    return scale < 1.12 ? 1.0 : std::min(scale, 2.0);
}

QFont textFont(TextStyle style, double scale) {
    const TextStyleRow& entry = row(style);
    QFont font = QFontDatabase::systemFont(entry.family);
    font.setPixelSize(qRound(entry.size * scale));
    font.setWeight(static_cast<QFont::Weight>(entry.weight));
    font.setLetterSpacing(QFont::AbsoluteSpacing, entry.tracking * scale);
    if (entry.family == values) {
        font.setStyleHint(QFont::Monospace);
        // Or some fonts draw "::" and the like as one sign.
        font.setStyleStrategy(QFont::PreferNoShaping);
    }
    return font;
}

QFont textFont(TextStyle style) {
    return textFont(style, desktopTextScale());
}

int lineHeight(TextStyle style) {
    return qRound(row(style).line * desktopTextScale());
}

} // namespace dropshade
