// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/DesktopAppearance.h"
#include "widgets/Theme.h"

#include <QObject>

#include <chrono>
#include <memory>

class QStyle;

namespace dropshade {

/// How the interface looks at this moment: the theme that follows the desktop, and whether things
/// move. Whoever composes the program owns one and hands it to every window, and each window to its
/// controls; `didChange` is their call to draw anew.
class Look : public QObject {
    Q_OBJECT

public:
    /// `appearance` must outlive this object.
    explicit Look(const DesktopAppearance& appearance);
    ~Look() override;

    const Theme& theme() const { return m_theme; }

    /// `time`, or none where the user wants nothing to move.
    [[nodiscard]] std::chrono::milliseconds duration(std::chrono::milliseconds time) const;

    /// See `DesktopAppearance::blendsWindows`.
    [[nodiscard]] bool blendsWindows() const { return m_appearance.blendsWindows(); }

    /// See `DesktopAppearance::programsPlaceWindows`.
    [[nodiscard]] bool programsPlaceWindows() const { return m_appearance.programsPlaceWindows(); }

    /// Draws what a control of Qt's own leaves to its style: menus, scroll bars, focus rings. For
    /// `QWidget::setStyle` on each such control.
    [[nodiscard]] QStyle* style() const { return m_style.get(); }

Q_SIGNALS:
    void didChange();

private:
    void update();

    const DesktopAppearance& m_appearance;
    Theme m_theme;
    std::unique_ptr<QStyle> m_style;
};

} // namespace dropshade
