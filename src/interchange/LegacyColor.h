// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "color/SRGBColor.h"

#include <cstdint>
#include <optional>
#include <span>

namespace dropshade {

class ColorConverter;

/// What the number of a colour's space means in an archive.
enum class LegacySpace : std::int64_t {
    calibratedRGB = 1,
    deviceRGB = 2,
    calibratedWhite = 3,
    deviceWhite = 4,
    deviceCMYK = 5,
    /// By a catalogue and a name, with a plain colour for whoever doesn't have the catalogue.
    named = 6,
};

/// The colour of these numbers, which are its components and, behind them or left out where it is
/// 1, its alpha. Nothing for a space without numbers, for a wrong count of them, or where one is
/// not finite. Of device spaces nothing is known; they count as sRGB, as does calibrated white,
/// whose curve is that of sRGB.
[[nodiscard]] std::optional<SRGBColor>
legacyColor(std::int64_t space, std::span<const double> numbers, ColorConverter& converter);

} // namespace dropshade
