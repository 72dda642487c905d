// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/DesktopAppearance.h"
#include "widgets/Theme.h"

#include <QObject>

#include <chrono>

namespace dropshade {

/// How the interface looks at this moment: the theme that follows the desktop, and whether things
/// move. Whoever composes the program owns one and hands it to every window, and each window to its
/// controls; `didChange` is their call to draw anew.
class Look : public QObject {
    Q_OBJECT

public:
    /// `appearance` must outlive this object.
    explicit Look(const DesktopAppearance& appearance);

    const Theme& theme() const { return m_theme; }

    /// `time`, or none where the user wants nothing to move.
    [[nodiscard]] std::chrono::milliseconds duration(std::chrono::milliseconds time) const;

    /// See `DesktopAppearance::blendsWindows`.
    [[nodiscard]] bool blendsWindows() const { return m_appearance.blendsWindows(); }

Q_SIGNALS:
    void didChange();

private:
    void update();

    const DesktopAppearance& m_appearance;
    Theme m_theme;
};

} // namespace dropshade
