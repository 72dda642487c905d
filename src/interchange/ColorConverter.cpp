// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "interchange/ColorConverter.h"

#include <QFile>
#include <QStandardPaths>

#include <algorithm>
#include <array>
#include <cmath>

namespace dropshade {
namespace {

/// Every range that is asked for holds 0.
double clamped(double number, double least, double most) {
    return std::isnan(number) ? 0.0 : std::clamp(number, least, most);
}

double fraction(double number) {
    return clamped(number, 0.0, 1.0);
}

QByteArray contentOf(const QString& path) {
    QFile file(path);
    return !path.isEmpty() && file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

SRGBColor ColorConverter::fromCmyk(double cyan, double magenta, double yellow, double black) {
    if (!m_fromCmyk) {
        if (m_cmykProfile.isNull())
            m_cmykProfile =
                QStandardPaths::locate(QStandardPaths::GenericDataLocation,
                                       QStringLiteral("color/icc/ghostscript/default_cmyk.icc"));
        m_fromCmyk = ColorTransform::fromInk(contentOf(m_cmykProfile));
    }
    const double light = 1.0 - fraction(black);
    if (!m_fromCmyk->works())
        return SRGBColor((1.0 - fraction(cyan)) * light, (1.0 - fraction(magenta)) * light,
                         (1.0 - fraction(yellow)) * light);
    // Here LittleCMS counts ink in percent.
    const std::array<double, 4> ink = {100.0 * fraction(cyan), 100.0 * fraction(magenta),
                                       100.0 * fraction(yellow), 100.0 * fraction(black)};
    return (*m_fromCmyk)(ink);
}

SRGBColor ColorConverter::fromLab(double lightness, double a, double b) {
    if (!m_fromLab)
        m_fromLab = ColorTransform::fromLab();
    const std::array<double, 3> lab = {clamped(lightness, 0.0, 100.0), clamped(a, -128.0, 127.0),
                                       clamped(b, -128.0, 127.0)};
    if (!m_fromLab->works())
        return SRGBColor(lab[0] / 100.0, lab[0] / 100.0, lab[0] / 100.0);
    return (*m_fromLab)(lab);
}

} // namespace dropshade
