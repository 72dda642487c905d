// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <span>

namespace dropshade {

/// A place on the keyboard under its two numbers.
struct VirtualKey {
    std::uint32_t virtualCode; ///< As shortcuts are stored.
    std::uint32_t linuxCode;   ///< As the kernel reports the key.
};

/// Every key but the modifiers and locks, one row for each place. The virtual codes are Carbon's
/// `kVK_` constants of the ANSI, ISO and JIS keyboards, the others the `KEY_` constants of
/// `linux/input-event-codes.h`; they meet in the usage ids of the USB HID Usage Tables 1.4, chapter
/// 10, and the names of the W3C's "UI Events KeyboardEvent code Values", which list both.
[[nodiscard]] std::span<const VirtualKey> virtualKeys();

// Nothing for a key that is not in the table.

[[nodiscard]] std::optional<std::uint32_t> linuxKeyCode(std::uint32_t virtualKeyCode);
[[nodiscard]] std::optional<std::uint32_t> virtualKeyCode(std::uint32_t linuxKeyCode);

/// The X server and Wayland number keys by the kernel's codes, moved up by this.
inline constexpr std::uint32_t xkbKeyCodeOffset = 8;

} // namespace dropshade
