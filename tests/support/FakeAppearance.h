// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/DesktopAppearance.h"

namespace dropshade {

/// A desktop whose look the test decides. Each setter announces a value that differs.
class FakeAppearance : public DesktopAppearance {
public:
    [[nodiscard]] bool isDark() const override { return m_dark; }
    [[nodiscard]] bool isHighContrast() const override { return m_highContrast; }
    [[nodiscard]] bool reducesMotion() const override { return m_reducedMotion; }
    [[nodiscard]] bool blendsWindows() const override { return m_blends; }
    [[nodiscard]] bool programsPlaceWindows() const override { return m_programsPlaceWindows; }

    void setDark(bool dark) { change(m_dark, dark); }
    void setHighContrast(bool high) { change(m_highContrast, high); }
    void setReducedMotion(bool reduced) { change(m_reducedMotion, reduced); }
    void setBlendsWindows(bool blends) { m_blends = blends; }
    void setProgramsPlaceWindows(bool place) { m_programsPlaceWindows = place; }

private:
    void change(bool& field, bool value) {
        if (field != value) {
            field = value;
            Q_EMIT didChange();
        }
    }

    bool m_dark = false;
    bool m_highContrast = false;
    bool m_reducedMotion = false;
    bool m_blends = true;
    bool m_programsPlaceWindows = true;
};

} // namespace dropshade
