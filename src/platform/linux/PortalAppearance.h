// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/DesktopAppearance.h"

#include <QDBusMessage>

namespace dropshade {

/// Light or dark by the desktop portal's settings, and by the program's palette where the desktop
/// has no portal or no opinion.
class PortalAppearance : public DesktopAppearance {
    Q_OBJECT

public:
    PortalAppearance();

    [[nodiscard]] bool isDark() const override;

private Q_SLOTS:
    void settingChanged(const QDBusMessage& message);

private:
    enum class Preference { None, Dark, Light };

    void ask();
    void setPreference(const QVariant& colorScheme);

    Preference m_preference = Preference::None;
};

} // namespace dropshade
