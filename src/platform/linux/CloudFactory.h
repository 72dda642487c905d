// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CloudAccount.h"
#include "platform/CloudKeyValueStore.h"
#include "platform/Scheduler.h"

namespace dropshade {

/// A store that follows the account in the settings. Loads nothing before it is opened.
[[nodiscard]] std::unique_ptr<CloudKeyValueStore> makeCloudStore(const UserDefaults& defaults,
                                                                 const Scheduler& scheduler);

/// Loads what it needs when it is asked.
[[nodiscard]] std::unique_ptr<CloudAccounts> makeCloudAccounts();

} // namespace dropshade
