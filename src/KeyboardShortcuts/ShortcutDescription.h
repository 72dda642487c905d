// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "KeyboardShortcuts/Shortcut.h"
#include "platform/KeyboardLayout.h"

#include <QKeySequence>

namespace dropshade {

/// How a shortcut is shown: the symbols of its modifiers, then that of its key or the capital that
/// the key makes, or U+FFFD for a key that makes nothing.
[[nodiscard]] QString description(const Shortcut& shortcut, const KeyboardLayout& layout);

/// The shortcut as Qt writes it, which is how assistive technology reads it out; empty for a key
/// that Qt has no name for.
[[nodiscard]] QKeySequence keyEquivalent(const Shortcut& shortcut, const KeyboardLayout& layout);

} // namespace dropshade
