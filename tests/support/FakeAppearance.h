// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/DesktopAppearance.h"

namespace dropshade {

/// A desktop whose look the test decides.
class FakeAppearance : public DesktopAppearance {
public:
    [[nodiscard]] bool isDark() const override { return m_dark; }

    /// Announces a look that differs.
    void setDark(bool dark) {
        if (m_dark != dark) {
            m_dark = dark;
            Q_EMIT didChange();
        }
    }

private:
    bool m_dark = false;
};

} // namespace dropshade
