// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "contrast/ContrastSolver.h"

#include "contrast/ContrastMetrics.h"
#include "contrast/LightnessSearch.h"

#include <cmath>

namespace dropshade {

namespace {

std::optional<SRGBColor> adjusted(const SRGBColor& moved, const ColorTest& passes) {
    if (passes(moved))
        return moved;
    return withNearestPassingLightness(moved, passes);
}

} // namespace

std::optional<SRGBColor> adjustedToMeetRatio(const SRGBColor& moved, const SRGBColor& fixed,
                                             double wantedRatio) {
    const double fixedLuminance = relativeLuminance(fixed);
    return adjusted(moved, [=](const SRGBColor& candidate) {
        return contrastRatioOfLuminances(relativeLuminance(candidate), fixedLuminance) >=
               wantedRatio;
    });
}

std::optional<SRGBColor> adjustedToMeetLc(const SRGBColor& moved, const SRGBColor& fixed,
                                          double wantedLc, bool movedIsBackground) {
    const double fixedY = apcaLuminance(fixed);
    const double wanted = std::abs(wantedLc);
    return adjusted(moved, [=](const SRGBColor& candidate) {
        const double candidateY = apcaLuminance(candidate);
        const double lc =
            movedIsBackground ? apcaLc(fixedY, candidateY) : apcaLc(candidateY, fixedY);
        return std::abs(lc) >= wanted;
    });
}

} // namespace dropshade
