// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <string_view>

namespace dropshade {

/// The drawing of the status item.
enum class MenuBarIconStyle { Picker, Swatch, Palette };

/// One row of the table of styles.
struct MenuBarIconStyleInfo {
    MenuBarIconStyle style = MenuBarIconStyle::Picker;
    /// The string that the setting holds.
    std::string_view rawValue;
    /// English; whoever shows it translates it, with the comment "Menu bar icon style".
    std::string_view displayName;
};

/// In the order in which a picker offers them, and that of the enumeration.
inline constexpr std::array<MenuBarIconStyleInfo, 3> menuBarIconStyles = {{
    {MenuBarIconStyle::Picker, "picker", "Default"},
    {MenuBarIconStyle::Swatch, "swatch", "Swatch"},
    {MenuBarIconStyle::Palette, "palette", "Palette"},
}};

} // namespace dropshade
