// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/UserDefaults.h"

namespace dropshade {

// Readings of a stored value of any type, for the settings whose default is the zero value. They
// understand what other programs write for a Boolean or a number: "YES" or "12" as a string.

/// A number that is not 0; a string that begins with Y, T or a number that is not 0. False for the
/// rest, also for an unset key.
[[nodiscard]] bool looseBool(const std::optional<DefaultsValue>& value);

/// A number, its fraction cut off, or the number that a string begins with; pinned to what fits.
/// 0 for the rest.
[[nodiscard]] qint64 looseInteger(const std::optional<DefaultsValue>& value);

} // namespace dropshade
