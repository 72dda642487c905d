// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "widgets/Theme.h"

#include <QFontDatabase>

namespace dropshade {

namespace {

constexpr double valueFontSize = 13.0;

Theme loupeColors(Theme theme) {
    theme.loupeRing = QColor(255, 255, 255);
    theme.loupeRingEdge = QColor(17, 17, 17, 179);
    theme.loupeInk = QColor(17, 17, 17);
    theme.loupeGrid = QColor(128, 128, 128, 71);
    theme.loupePlateInnerEdge = QColor(255, 255, 255, 140);
    theme.loupePlateOuterEdge = QColor(17, 17, 17, 140);
    return theme;
}

Theme lightTheme() {
    Theme theme;
    theme.scheme = Theme::Scheme::Light;
    theme.surfacePlate = QColor(0x1F, 0x1F, 0x1F);
    theme.surfaceSunken = QColor(0xE6, 0xE6, 0xE6);
    theme.textOnPlate = QColor(0xF4, 0xF4, 0xF4);
    theme.textPrimary = QColor(0x1A, 0x1A, 0x1A);
    theme.linePlate = QColor(0, 0, 0, 0);
    theme.dragShadow = QColor(0, 0, 0, 71);
    return loupeColors(theme);
}

Theme darkTheme() {
    Theme theme;
    theme.scheme = Theme::Scheme::Dark;
    theme.surfacePlate = QColor(0x3D, 0x3D, 0x3D);
    theme.surfaceSunken = QColor(0x14, 0x14, 0x14);
    theme.textOnPlate = QColor(0xED, 0xED, 0xED);
    theme.textPrimary = QColor(0xED, 0xED, 0xED);
    theme.linePlate = QColor(255, 255, 255, 41);
    theme.dragShadow = QColor(0, 0, 0, 153);
    return loupeColors(theme);
}

} // namespace

Theme Theme::of(Scheme scheme) {
    return scheme == Scheme::Dark ? darkTheme() : lightTheme();
}

QFont Theme::valueFont(double scale) {
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    font.setPixelSize(qRound(valueFontSize * scale));
    font.setStyleHint(QFont::Monospace);
    return font;
}

} // namespace dropshade
