// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "color/SRGBColor.h"
#include "interchange/ColorTransform.h"

#include <QString>

#include <memory>

namespace dropshade {

/// Colours of other kinds as sRGB, by LittleCMS. The library and each conversion are loaded when
/// their first colour comes, so a converter that is never asked costs nothing; make one for each
/// file. Numbers out of range are clamped, those that are none count as 0.
class ColorConverter {
public:
    /// Converts CMYK by the profile in this file.
    explicit ColorConverter(const QString& cmykProfile) : m_cmykProfile(cmykProfile) {}
    /// Converts CMYK by the profile that the system has for print of unknown origin.
    ColorConverter() = default;

    /// Ink from 0 to 1 each, relative colorimetric with black point compensation. Without a profile
    /// or LittleCMS by (1 − ink) (1 − black).
    [[nodiscard]] SRGBColor fromCmyk(double cyan, double magenta, double yellow, double black);

    /// CIE L*a*b* under D50: `lightness` 0 to 100, `a` and `b` −128 to 127. Without LittleCMS a
    /// grey of this lightness in percent.
    [[nodiscard]] SRGBColor fromLab(double lightness, double a, double b);

private:
    QString m_cmykProfile;
    std::unique_ptr<ColorTransform> m_fromCmyk;
    std::unique_ptr<ColorTransform> m_fromLab;
};

} // namespace dropshade
