// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "contrast/ColorWellEdit.h"

namespace dropshade {

namespace {

constexpr double deadBand = 0.0005;

} // namespace

void ColorWellEdit::open() {
    m_initialColor = m_binding.read();
    m_didCancel = false;
    m_fields = followingColor(m_fields, *m_initialColor, deadBand);
}

void ColorWellEdit::setFields(const HSBComponents& fields) {
    if (fields == m_fields || !m_initialColor)
        return;
    m_fields = fields;
    m_binding.write(hsbToSRGB(fields.hue, fields.saturation, fields.brightness, 1.0));
}

void ColorWellEdit::didClose() {
    if (m_didCancel && m_initialColor)
        m_binding.write(*m_initialColor);
    m_initialColor.reset();
    m_didCancel = false;
}

} // namespace dropshade
