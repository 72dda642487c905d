// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// Where the desktop portal is found on the session bus.
namespace dropshade::portal {

inline const QString service = QStringLiteral("org.freedesktop.portal.Desktop");
inline const QString path = QStringLiteral("/org/freedesktop/portal/desktop");

} // namespace dropshade::portal
