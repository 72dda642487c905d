// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>

/// Sizes and times of the interface. Sizes are logical pixels; those of what holds text are the
/// least, and grow with the desktop's font.
namespace dropshade::metrics {

// A grid of 8 with 4 for its half step.
inline constexpr int space4 = 4;
inline constexpr int space8 = 8;
inline constexpr int space12 = 12;
inline constexpr int space16 = 16;
inline constexpr int space20 = 20;
inline constexpr int space24 = 24;
inline constexpr int space32 = 32;
inline constexpr int space40 = 40;

inline constexpr int windowMargin = 16;
inline constexpr int settingsMargin = 24;
inline constexpr int compactMargin = 12;

// An outer radius is the inner one and the padding between them.
inline constexpr double radiusCell = 4.0;
inline constexpr double radiusControl = 6.0;
inline constexpr double radiusSurface = 10.0;

inline constexpr double lineHairline = 1.0;
inline constexpr double lineError = 1.0;
inline constexpr double lineSelected = 1.5;
inline constexpr double focusWidth = 2.0;
inline constexpr double focusGap = 1.0;
/// What the focus ring needs around a control.
inline constexpr int focusReach = 3;

/// The mark at the left end of a current or selected row.
inline constexpr double tickWidth = 2.0;
inline constexpr double tickInset = 6.0;
inline constexpr double tickRadius = 1.0;

inline constexpr int control = 32;
inline constexpr int controlPadding = 12;
inline constexpr int iconButton = 32;
inline constexpr int iconButtonHeader = 28;
inline constexpr int iconButtonField = 24;
inline constexpr int icon = 16;
inline constexpr int iconMenu = 14;
inline constexpr int toggleWidth = 36;
inline constexpr int toggleHeight = 20;
inline constexpr int thumb = 16;
inline constexpr int pill = 24;
inline constexpr int preview = 36;
inline constexpr int rowFormat = 28;
inline constexpr int rowMenu = 28;
inline constexpr int rowList = 36;
inline constexpr int rowSetting = 40;
inline constexpr int rowPalette = 40;
inline constexpr int statusBar = 32;
inline constexpr int topBar = 48;
inline constexpr int menuSwatch = 20;
inline constexpr int swatchGap = 3;
inline constexpr int spineChip = 16;
inline constexpr int tileWidth = 44;
inline constexpr int tileHeight = 36;
inline constexpr int alertWidth = 360;
inline constexpr int sheetWidth = 400;
inline constexpr int tooltipWidth = 320;

inline constexpr double disabledIconOpacity = 0.6;
inline constexpr double draggedOriginOpacity = 0.25;
inline constexpr double swatchPressedScale = 0.9;
inline constexpr double swatchDraggedScale = 1.12;
inline constexpr double favouriteScale = 0.825;

inline constexpr std::chrono::milliseconds press{80};
inline constexpr std::chrono::milliseconds hover{120};
inline constexpr std::chrono::milliseconds popoverIn{140};
inline constexpr std::chrono::milliseconds popoverOut{100};
inline constexpr std::chrono::milliseconds toggle{160};
inline constexpr std::chrono::milliseconds disclosure{200};
inline constexpr std::chrono::milliseconds sheetIn{240};
inline constexpr std::chrono::milliseconds sheetOut{160};
inline constexpr std::chrono::milliseconds copyFlash{320};

/// A damped spring of mass 1, by the time of one free swing (seconds) and the share of the critical
/// damping.
struct Spring {
    double response = 0.0;
    double dampingFraction = 0.0;
};

inline constexpr Spring liftSwatch{0.22, 0.85};
inline constexpr Spring liftScaleOrPalette{0.25, 0.82};
inline constexpr Spring reorder{0.32, 0.78};
/// Rows around a palette that opens or closes: there after `disclosure`, and never past it.
inline constexpr Spring disclosureSpring{0.125, 1.0};

} // namespace dropshade::metrics
