// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CloudKeyValueStore.h"

#include <map>

namespace dropshade {

/// Bytes of values, by estimate, up to which nobody needs to worry about the limits of a store.
inline constexpr qint64 sizeBudget = 900'000;

/// About how many bytes a value takes: data and strings (UTF-8) their length, a number or a
/// Boolean 8, a list the sum of its strings.
[[nodiscard]] qint64 estimatedSize(const CloudValue& value);

/// Whether the values together go beyond the budget; the keys don't count.
[[nodiscard]] bool exceedsSizeBudget(const std::map<QString, CloudValue>& values);

} // namespace dropshade
