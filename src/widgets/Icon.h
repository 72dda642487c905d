// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QIcon>
#include <QPixmap>

namespace dropshade {

/// The drawings of the interface, by use. Some uses share a drawing.
enum class Icon {
    MenuBar,
    ColorSwatch,
    Palette,
    Pointer,
    Contrast,
    Settings,
    Info,
    Refresh,
    Quit,
    Eraser,
    Clock,
    Star,
    StarFill,
    Bolt,
    ExclamationCircle,
    CircleCheck,
    CircleX,
    SizeWarning,
    SyncError,
    Sampler,
    Copy,
    Options,
    Add,
    Close,
    ChevronRight,
    ChevronDown,
    Picker,
    Grip,
    ImageDrop,
    FileDrop,
    Working,
    StatusPicker,
    StatusSwatch,
    StatusPalette,
};

/// The drawing in one colour, `side` logical pixels wide and high at `ratio` device pixels each.
/// Lines keep the width that the interface gives to icons of that size. Drawn once for each colour
/// and size, and then kept.
[[nodiscard]] QPixmap iconPixmap(Icon icon, const QColor& ink, int side, double ratio);

/// The same for menus and item views, at one and at two device pixels to the logical pixel, with
/// `disabledInk` where the item is disabled.
[[nodiscard]] QIcon tintedIcon(Icon icon, const QColor& ink, const QColor& disabledInk, int side);

} // namespace dropshade
