// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "widgets/Look.h"

#include "widgets/ThemeStyle.h"

namespace dropshade {

Look::Look(const DesktopAppearance& appearance)
    : m_appearance(appearance), m_style(std::make_unique<ThemeStyle>(m_theme)) {
    update();
    connect(&appearance, &DesktopAppearance::didChange, this, [this] {
        update();
        Q_EMIT didChange();
    });
}

Look::~Look() = default;

std::chrono::milliseconds Look::duration(std::chrono::milliseconds time) const {
    return m_appearance.reducesMotion() ? std::chrono::milliseconds::zero() : time;
}

void Look::update() {
    m_theme =
        Theme::of(m_appearance.isDark() ? Theme::Scheme::Dark : Theme::Scheme::Light,
                  m_appearance.isHighContrast() ? Theme::Contrast::High : Theme::Contrast::Normal);
}

} // namespace dropshade
