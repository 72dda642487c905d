// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "color/ColorFormat.h"
#include "platform/UserDefaults.h"

namespace dropshade {

/// The drawing of the status item.
enum class MenuBarIconStyle { Picker, Swatch, Palette };

// Readers of plain settings. Each goes to the store at each call, so that nothing goes stale, and
// gives a legal value whatever stands there; a bad value is not repaired.

/// "colorFormat"; names of an earlier version are understood; `hex` for anything else.
[[nodiscard]] ColorFormat colorFormat(const UserDefaults& defaults);

/// "useHashPrefix", true when unset.
[[nodiscard]] bool useHashPrefix(const UserDefaults& defaults);

/// "useLowercase", false when unset.
[[nodiscard]] bool useLowercase(const UserDefaults& defaults);

/// "decimalPlaces": 2, 3 or 4; 2 for anything else.
[[nodiscard]] int decimalPlaces(const UserDefaults& defaults);

/// The three options above together.
[[nodiscard]] FormatOptions formatOptions(const UserDefaults& defaults);

/// "menuBarIconStyle"; `Picker` for anything unknown.
[[nodiscard]] MenuBarIconStyle menuBarIconStyle(const UserDefaults& defaults);

/// "copySound": "none" or a name of `soundNames`; "drop" for anything else.
[[nodiscard]] QString copySound(const UserDefaults& defaults);

namespace keys {

inline const QString colorFormat = QStringLiteral("colorFormat");
inline const QString useHashPrefix = QStringLiteral("useHashPrefix");
inline const QString useLowercase = QStringLiteral("useLowercase");
inline const QString decimalPlaces = QStringLiteral("decimalPlaces");
inline const QString copySound = QStringLiteral("copySound");
inline const QString menuBarIconStyle = QStringLiteral("menuBarIconStyle");
inline const QString totalChecksCount = QStringLiteral("totalChecksCount");

} // namespace keys

} // namespace dropshade
