// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace dropshade {

/// The words of recorders, under the names that their catalogues give them.
namespace shortcutTexts {

[[nodiscard]] QString recordShortcut();
[[nodiscard]] QString pressShortcut();
[[nodiscard]] QString usedByMenuItem(const QString& menuItem);
[[nodiscard]] QString usedBySystem();
[[nodiscard]] QString canBeChanged();
[[nodiscard]] QString disallowed();
[[nodiscard]] QString forceUse();
[[nodiscard]] QString ok();

} // namespace shortcutTexts

} // namespace dropshade
