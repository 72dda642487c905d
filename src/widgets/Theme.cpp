// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "widgets/Theme.h"

namespace dropshade {

namespace {

QColor rgb(unsigned value, double alpha = 1.0) {
    QColor color = QColor::fromRgb(static_cast<QRgb>(value));
    color.setAlpha(qRound(alpha * 255.0));
    return color;
}

/// Colours that lie on other colours and so do not depend on the scheme.
Theme inEveryScheme(Theme theme) {
    theme.checkerLight = rgb(0xE6E6E6);
    theme.checkerDark = rgb(0xB3B3B3);
    theme.thumbRing = rgb(0xFFFFFF);
    theme.loupeRing = rgb(0xFFFFFF);
    theme.loupeRingEdge = rgb(0x111111, 0.7);
    theme.loupeInk = rgb(0x111111);
    theme.loupeGrid = rgb(0x808080, 0.28);
    theme.loupePlateInnerEdge = rgb(0xFFFFFF, 0.55);
    theme.loupePlateOuterEdge = rgb(0x111111, 0.55);
    return theme;
}

Theme lightTheme() {
    Theme theme;
    theme.scheme = Theme::Scheme::Light;
    theme.surfaceWindow = rgb(0xF4F4F4);
    theme.surfaceRaised = rgb(0xFBFBFB);
    theme.surfaceField = rgb(0xFFFFFF);
    theme.surfaceButton = rgb(0xFFFFFF);
    theme.surfaceSunken = rgb(0xE6E6E6);
    theme.surfaceSegment = rgb(0xFFFFFF);
    theme.surfacePlate = rgb(0x1F1F1F);
    theme.textOnPlate = rgb(0xF4F4F4);
    theme.linePlate = rgb(0x000000, 0.0);
    theme.textPrimary = rgb(0x1A1A1A);
    theme.textSecondary = rgb(0x525252);
    theme.textTertiary = rgb(0x666666);
    theme.fillHover = rgb(0x000000, 0.06);
    theme.fillPressed = rgb(0x000000, 0.12);
    theme.lineHairline = rgb(0x000000, 0.12);
    theme.lineEdge = rgb(0x525252, 0.35);
    theme.lineTrackBar = rgb(0x525252, 0.37);
    theme.lineTrackSquare = rgb(0x525252, 0.26);
    theme.lineControl = rgb(0x767676);
    theme.lineSwatch = rgb(0x000000, 0.16);
    theme.lineLift = rgb(0xFFFFFF);
    theme.accentBase = rgb(0x2B50D0);
    theme.textOnAccent = rgb(0xFFFFFF);
    theme.accentSoft = rgb(0x2B50D0, 0.15);
    theme.accentFaint = rgb(0x2B50D0, 0.08);
    theme.accentSoftHover = rgb(0x2B50D0, 0.22);
    theme.accentSoftPressed = rgb(0x2B50D0, 0.3);
    theme.inkBase = rgb(0x1F1F1F);
    theme.inkHover = rgb(0x3A3A3A);
    theme.inkPressed = rgb(0x525252);
    theme.textOnInk = rgb(0xFFFFFF);
    theme.dangerBase = rgb(0xB3261E);
    theme.dangerHover = rgb(0x9A1F18);
    theme.dangerPressed = rgb(0x821913);
    theme.textOnDanger = rgb(0xFFFFFF);
    theme.dangerEdge = rgb(0xB3261E, 0.6);
    theme.stateWarning = rgb(0x7A5200);
    theme.statePass = rgb(0x24883D);
    theme.stateFail = rgb(0x777777);
    theme.overlayScrim = rgb(0x000000, 0.24);
    theme.fillTileSelected = rgb(0x2B50D0, 0.15);
    theme.fillTileHover = rgb(0x525252, 0.1);
    theme.fillTileRest = rgb(0x525252, 0.05);
    theme.toggleKnobOn = rgb(0xFFFFFF);
    theme.shadowPopup = {{{8.0, 24.0, rgb(0x000000, 0.16)}, {2.0, 6.0, rgb(0x000000, 0.08)}}};
    theme.shadowDrag = {8.0, 16.0, rgb(0x000000, 0.28)};
    return inEveryScheme(theme);
}

Theme darkTheme() {
    Theme theme;
    theme.scheme = Theme::Scheme::Dark;
    theme.surfaceWindow = rgb(0x1E1E1E);
    theme.surfaceRaised = rgb(0x2A2A2A);
    theme.surfaceField = rgb(0x141414);
    theme.surfaceButton = rgb(0x383838);
    theme.surfaceSunken = rgb(0x141414);
    theme.surfaceSegment = rgb(0x3D3D3D);
    theme.surfacePlate = rgb(0x3D3D3D);
    theme.textOnPlate = rgb(0xEDEDED);
    theme.linePlate = rgb(0xFFFFFF, 0.16);
    theme.textPrimary = rgb(0xEDEDED);
    theme.textSecondary = rgb(0xB8B8B8);
    theme.textTertiary = rgb(0x9C9C9C);
    theme.fillHover = rgb(0xFFFFFF, 0.06);
    theme.fillPressed = rgb(0xFFFFFF, 0.1);
    theme.lineHairline = rgb(0xFFFFFF, 0.12);
    theme.lineEdge = rgb(0xB8B8B8, 0.35);
    theme.lineTrackBar = rgb(0xB8B8B8, 0.37);
    theme.lineTrackSquare = rgb(0xB8B8B8, 0.26);
    theme.lineControl = rgb(0x8C8C8C);
    theme.lineSwatch = rgb(0xFFFFFF, 0.18);
    theme.lineLift = rgb(0xEDEDED);
    theme.accentBase = rgb(0x9DB2FF);
    theme.textOnAccent = rgb(0x1A1A1A);
    theme.accentSoft = rgb(0x9DB2FF, 0.15);
    theme.accentFaint = rgb(0x9DB2FF, 0.08);
    theme.accentSoftHover = rgb(0x9DB2FF, 0.22);
    theme.accentSoftPressed = rgb(0x9DB2FF, 0.3);
    theme.inkBase = rgb(0xEDEDED);
    theme.inkHover = rgb(0xFFFFFF);
    theme.inkPressed = rgb(0xCFCFCF);
    theme.textOnInk = rgb(0x1A1A1A);
    theme.dangerBase = rgb(0xFF8D83);
    theme.dangerHover = rgb(0xFFA59D);
    theme.dangerPressed = rgb(0xE87A71);
    theme.textOnDanger = rgb(0x1A1A1A);
    theme.dangerEdge = rgb(0xFF8D83, 0.6);
    theme.stateWarning = rgb(0xE8B24A);
    theme.statePass = rgb(0x5CCC74);
    theme.stateFail = rgb(0xB5B5B5);
    theme.overlayScrim = rgb(0x000000, 0.48);
    theme.fillTileSelected = rgb(0x9DB2FF, 0.15);
    theme.fillTileHover = rgb(0xB8B8B8, 0.1);
    theme.fillTileRest = rgb(0xB8B8B8, 0.05);
    theme.toggleKnobOn = rgb(0x1A1A1A);
    theme.shadowPopup = {{{8.0, 24.0, rgb(0x000000, 0.48)}, {2.0, 6.0, rgb(0x000000, 0.32)}}};
    theme.shadowDrag = {8.0, 16.0, rgb(0x000000, 0.6)};
    return inEveryScheme(theme);
}

Theme withHighContrast(Theme theme) {
    theme.lineEdge = theme.lineControl;
    theme.lineHairline = theme.lineControl;
    theme.lineSwatch = theme.lineControl;
    return theme;
}

} // namespace

Theme Theme::of(Scheme scheme, Contrast contrast) {
    const Theme theme = scheme == Scheme::Dark ? darkTheme() : lightTheme();
    return contrast == Contrast::High ? withHighContrast(theme) : theme;
}

} // namespace dropshade
