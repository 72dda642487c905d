// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <xcb/xcb.h>

#include <cstdint>
#include <optional>
#include <vector>

namespace dropshade {

/// Which bits of a key event's state stand for which modifiers. Only Shift and Control have bits of
/// their own; the others are wherever the keyboard's layout puts them.
struct X11ModifierMasks {
    std::uint16_t alt = 0; ///< 0 where the layout has no such modifier, as for the next.
    std::uint16_t super = 0;
    std::uint16_t locks = 0; ///< CapsLock, NumLock and ScrollLock together.

    /// As the server has them now.
    [[nodiscard]] static X11ModifierMasks read(xcb_connection_t* connection);

    /// The bits of the modifiers of a stored shortcut; nothing where one is missing.
    [[nodiscard]] std::optional<std::uint16_t> state(std::uint32_t carbonModifiers) const;

    /// Every set of locks that may be on, none of them included.
    [[nodiscard]] std::vector<std::uint16_t> lockStates() const;

    friend bool operator==(const X11ModifierMasks&, const X11ModifierMasks&) = default;
};

} // namespace dropshade
