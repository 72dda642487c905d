// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "app/AppDelegate.h"

namespace dropshade {

// Every way to a window ends here: a row of the menu, a global shortcut, an action on the bus.

void AppDelegate::openColorPicker() {}

void AppDelegate::openPalettes() {}

void AppDelegate::openContrast() {}

void AppDelegate::openNewPaletteFromImage() {
    openPalettes();
}

void AppDelegate::openNewPaletteFromFile() {
    openPalettes();
}

void AppDelegate::openNewPaletteFromPreset() {
    openPalettes();
}

void AppDelegate::openSettings() {}

void AppDelegate::openAbout() {}

} // namespace dropshade
