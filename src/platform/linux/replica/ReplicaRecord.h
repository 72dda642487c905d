// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CloudKeyValueStore.h"
#include "platform/ReferenceTime.h"

namespace dropshade {

/// A keyed value as it lies in a file or on a server: a line of JSON with the key, the type, the
/// moment and a checksum, and behind it the bytes of the value.
struct ReplicaRecord {
    QString key;
    CloudValue value;
    ReferenceTime writtenAt;

    /// No record is longer; whoever finds more needs not read it.
    static constexpr qsizetype mostBytes = 2 * 1024 * 1024;

    [[nodiscard]] QByteArray encoded() const;
    /// Nothing for anything that `encoded` didn't make, also for one cut off or mixed of two.
    [[nodiscard]] static std::optional<ReplicaRecord> decoded(const QByteArray& bytes);
};

} // namespace dropshade
