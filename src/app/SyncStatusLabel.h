// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "sync/CloudSyncEngine.h"

namespace dropshade {

/// What the settings say about the state of sync.
struct SyncStatusLabel {
    enum class Sign { None, Warning, Error };

    Sign sign = Sign::None;
    /// Empty where there is nothing to say.
    QString words;
    /// In how long the words will be others, with nothing but time going by; nothing for words that
    /// tell no time.
    std::optional<std::chrono::milliseconds> validFor;

    [[nodiscard]] static SyncStatusLabel of(const CloudSyncEngine& engine, ReferenceTime now);

    friend bool operator==(const SyncStatusLabel&, const SyncStatusLabel&) = default;
};

/// How long ago that was, in words: "now", "5 minutes ago", "yesterday". What lies ahead, as where
/// the clock was put back, is now.
[[nodiscard]] QString relativeTime(ReferenceTime moment, ReferenceTime now);

} // namespace dropshade
