// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/DesktopAppearance.h"

#include <QDBusMessage>

#include <functional>
#include <optional>

namespace dropshade {

/// The look of the desktop by its portal's settings; light or dark by the program's palette where
/// the desktop has no portal or no opinion. Contrast and motion are also understood in the form in
/// which GNOME's own settings come through the portal.
class PortalAppearance : public DesktopAppearance {
    Q_OBJECT

public:
    /// What the portal does not tell: `blendsWindows` is asked each time.
    PortalAppearance(std::function<bool()> blendsWindows, bool programsPlaceWindows);

    [[nodiscard]] bool isDark() const override;
    [[nodiscard]] bool isHighContrast() const override;
    [[nodiscard]] bool reducesMotion() const override;
    [[nodiscard]] bool blendsWindows() const override { return m_blendsWindows(); }
    [[nodiscard]] bool programsPlaceWindows() const override { return m_programsPlaceWindows; }

private Q_SLOTS:
    void settingChanged(const QDBusMessage& message);

private:
    enum class Setting { ColorScheme, Contrast, ReducedMotion, GnomeContrast, GnomeAnimations };
    struct Row;
    static const Row rows[];

    void ask(const Row& row);
    void set(Setting setting, const QVariant& value);

    std::function<bool()> m_blendsWindows;
    bool m_programsPlaceWindows;
    std::optional<bool> m_prefersDark;
    std::optional<bool> m_wantsContrast;
    std::optional<bool> m_wantsStillness;
    bool m_gnomeWantsContrast = false;
    bool m_gnomeAnimates = true;
};

} // namespace dropshade
