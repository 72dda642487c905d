// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

namespace dropshade {

/// The keymap that the Wayland compositor hands to every program, as text for xkbcommon; empty
/// where there is no compositor or it has no keyboard. Asks on a connection of its own and closes
/// it: left open, it would fill with news that nobody reads.
[[nodiscard]] QByteArray waylandKeymap();

} // namespace dropshade
