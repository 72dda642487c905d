// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "contrast/ContrastModel.h"

#include "contrast/ContrastMetrics.h"
#include "contrast/ContrastSolver.h"

#include <utility>

namespace dropshade {

ContrastModel::ContrastModel(LastContrastPair& last, std::function<void()> beep)
    : m_last(last), m_beep(std::move(beep)) {}

const SRGBColor& ContrastModel::color(SwatchTarget target) const {
    return target == SwatchTarget::background ? bgColor() : fgColor();
}

const SRGBColor& ContrastModel::other(SwatchTarget target) const {
    return target == SwatchTarget::background ? fgColor() : bgColor();
}

void ContrastModel::setColor(SwatchTarget target, const SRGBColor& color) {
    SRGBColor& place = target == SwatchTarget::background ? m_last.background : m_last.foreground;
    if (place == color)
        return;
    place = color;
    Q_EMIT colorsDidChange();
}

void ContrastModel::setBgColor(const SRGBColor& color) {
    setColor(SwatchTarget::background, color);
}

void ContrastModel::setFgColor(const SRGBColor& color) {
    setColor(SwatchTarget::foreground, color);
}

double ContrastModel::ratio() const {
    return contrastRatio(bgColor(), fgColor());
}

double ContrastModel::lc() const {
    return apcaLc(apcaLuminance(fgColor()), apcaLuminance(bgColor()));
}

void ContrastModel::swapColors() {
    if (bgColor() == fgColor())
        return;
    std::swap(m_last.background, m_last.foreground);
    Q_EMIT colorsDidChange();
}

bool ContrastModel::applyRatioFix(SwatchTarget target, double wantedRatio) {
    return apply(target, adjustedToMeetRatio(color(target), other(target), wantedRatio));
}

bool ContrastModel::applyLcFix(SwatchTarget target, double wantedLc) {
    return apply(target, adjustedToMeetLc(color(target), other(target), wantedLc,
                                          target == SwatchTarget::background));
}

bool ContrastModel::apply(SwatchTarget target, const std::optional<SRGBColor>& fixed) {
    if (!fixed) {
        m_beep();
        return false;
    }
    setColor(target, *fixed);
    return true;
}

} // namespace dropshade
