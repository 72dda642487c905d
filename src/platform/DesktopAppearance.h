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

Q_SIGNALS:
    void didChange();
};

} // namespace dropshade
