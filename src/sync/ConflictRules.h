// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CloudKeyValueStore.h"
#include "sync/Tombstone.h"

namespace dropshade {

/// What two machines agree on that wrote one key without knowing of one another:
///
/// - of a palette the copy modified later; it is gone only if it was deleted then or later;
/// - of deletions all, or one machine's would bring back what the other deleted;
/// - of anything else theirs at first contact, and then what was written later.
///
/// `deletions` are those known by now.
[[nodiscard]] std::optional<CloudValue> resolvedConflict(const CloudConflict& conflict,
                                                         const QList<Tombstone>& deletions,
                                                         ReferenceTime now);

} // namespace dropshade
