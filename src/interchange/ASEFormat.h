// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>

/// The numbers of Adobe Swatch Exchange files, all of them big-endian.
namespace dropshade::ase {

inline constexpr std::array<std::uint8_t, 4> magic = {'A', 'S', 'E', 'F'};
inline constexpr std::uint32_t version = 0x00010000;
// The types of blocks; readers skip any other.
inline constexpr std::uint16_t colorEntry = 0x0001;
inline constexpr std::uint16_t groupStart = 0xC001;
inline constexpr std::uint16_t groupEnd = 0xC002;

/// Global, spot or normal; readers make nothing of it.
inline constexpr std::uint16_t writtenColorType = 2;

} // namespace dropshade::ase
