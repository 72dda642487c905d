// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

namespace dropshade {

/// What the desktop says about the look of programs.
class DesktopAppearance : public QObject {
    Q_OBJECT

public:
    /// True when the user prefers dark windows.
    [[nodiscard]] virtual bool isDark() const = 0;

    /// True when the user asks for stronger edges.
    [[nodiscard]] virtual bool isHighContrast() const = 0;

    /// True when the user asks for no animations.
    [[nodiscard]] virtual bool reducesMotion() const = 0;

    /// Whether what lies under a window shows through where the window is translucent. Without
    /// that, such places are black. Asked each time; it does not announce a change.
    [[nodiscard]] virtual bool blendsWindows() const = 0;

    /// Whether windows go where a program puts them, as opaque as it says. Where not, the desktop
    /// places windows, and only popups have a place: beside the window that they belong to.
    [[nodiscard]] virtual bool programsPlaceWindows() const = 0;

Q_SIGNALS:
    /// One of the first three has changed.
    void didChange();
};

} // namespace dropshade
