// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "app/MenuBarIconStyle.h"
#include "app/SwatchSize.h"
#include "color/ColorFormat.h"
#include "contrast/ContrastAlgorithm.h"
#include "platform/UserDefaults.h"

namespace dropshade {

// Readers of plain settings. Each goes to the store at each call, so that nothing goes stale, and
// gives a legal value whatever stands there; a bad value is not repaired.

/// "colorFormat"; names of an earlier version are understood; `hex` for anything else.
[[nodiscard]] ColorFormat colorFormat(const UserDefaults& defaults);

/// "useHashPrefix", true when unset.
[[nodiscard]] bool useHashPrefix(const UserDefaults& defaults);

/// "useLowercase", false when unset; see `looseBool`.
[[nodiscard]] bool useLowercase(const UserDefaults& defaults);

/// "decimalPlaces": 2, 3 or 4; 2 for anything else.
[[nodiscard]] int decimalPlaces(const UserDefaults& defaults);

/// The three options above together.
[[nodiscard]] FormatOptions formatOptions(const UserDefaults& defaults);

/// "showRecentColors", true when unset.
[[nodiscard]] bool showRecentColors(const UserDefaults& defaults);

/// No list of recent colours is longer.
inline constexpr int mostRecentColors = 50;

/// "recentColorsLimit", pinned to 0 to `mostRecentColors`; 8 when unset.
[[nodiscard]] int recentColorsLimit(const UserDefaults& defaults);

/// "copySound": one of `copySounds` or `noCopySound`; `defaultCopySound` for anything else.
[[nodiscard]] QString copySound(const UserDefaults& defaults);

// What `AppSettings` mirrors: windows ask there.

/// "swatchSizeIndex", or else "swatchSize" as an earlier version wrote it; `s4` for anything else.
[[nodiscard]] SwatchSize swatchSize(const UserDefaults& defaults);

/// "closePaletteDialogOnCopy", false when unset; see `looseBool`.
[[nodiscard]] bool closePaletteDialogOnCopy(const UserDefaults& defaults);

/// "closeConvertDialogOnCopy", true when unset.
[[nodiscard]] bool closeConvertDialogOnCopy(const UserDefaults& defaults);

/// "contrastAlgorithm"; `wcag` for anything unknown.
[[nodiscard]] ContrastAlgorithm contrastAlgorithm(const UserDefaults& defaults);
[[nodiscard]] QString rawSetting(ContrastAlgorithm algorithm);

/// "menuBarIconStyle"; `Picker` for anything unknown.
[[nodiscard]] MenuBarIconStyle menuBarIconStyle(const UserDefaults& defaults);
[[nodiscard]] QString rawSetting(MenuBarIconStyle style);

/// "iCloudSyncEnabled", false when unset; see `looseBool`.
[[nodiscard]] bool iCloudSyncEnabled(const UserDefaults& defaults);

namespace keys {

inline const QString colorFormat = QStringLiteral("colorFormat");
inline const QString useHashPrefix = QStringLiteral("useHashPrefix");
inline const QString useLowercase = QStringLiteral("useLowercase");
inline const QString decimalPlaces = QStringLiteral("decimalPlaces");
inline const QString contrastAlgorithm = QStringLiteral("contrastAlgorithm");
inline const QString swatchSizeIndex = QStringLiteral("swatchSizeIndex");
/// The former form of the swatch size, which is only read.
inline const QString formerSwatchSize = QStringLiteral("swatchSize");
inline const QString closePaletteDialogOnCopy = QStringLiteral("closePaletteDialogOnCopy");
inline const QString closeConvertDialogOnCopy = QStringLiteral("closeConvertDialogOnCopy");
inline const QString copySound = QStringLiteral("copySound");
/// Synced and otherwise unused.
inline const QString appLanguage = QStringLiteral("appLanguage");
inline const QString showRecentColors = QStringLiteral("showRecentColors");
inline const QString menuBarIconStyle = QStringLiteral("menuBarIconStyle");
inline const QString recentColorsLimit = QStringLiteral("recentColorsLimit");
inline const QString pinnedColors = QStringLiteral("pinnedColors");
inline const QString recentColors = QStringLiteral("recentColors");
inline const QString userPalettes = QStringLiteral("userPalettes");
inline const QString collapsedPaletteIds = QStringLiteral("collapsedPaletteIds");
inline const QString iCloudSyncEnabled = QStringLiteral("iCloudSyncEnabled");
inline const QString totalChecksCount = QStringLiteral("totalChecksCount");
inline const QString didImportLegacyContainerPrefs =
    QStringLiteral("didImportLegacyContainerPrefs");

} // namespace keys

} // namespace dropshade
