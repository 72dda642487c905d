// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <string_view>

namespace dropshade {

/// How the legibility of a pair of colours is measured.
enum class ContrastAlgorithm { wcag, apca };

/// One row of the table of algorithms.
struct ContrastAlgorithmInfo {
    ContrastAlgorithm algorithm = ContrastAlgorithm::wcag;
    /// The string that the setting holds.
    std::string_view rawValue;
    /// English; whoever shows it translates it.
    std::string_view displayName;
};

/// In the order in which a picker offers them; the first is what a fresh install measures by.
inline constexpr std::array<ContrastAlgorithmInfo, 2> contrastAlgorithms = {{
    {ContrastAlgorithm::wcag, "wcag", "WCAG 2"},
    {ContrastAlgorithm::apca, "apca", "APCA"},
}};

} // namespace dropshade
