// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CloudAccount.h"

namespace dropshade {

// The password of an account: with the desktop's secret service where there is one, else in a file
// that only this user can read, in the configuration folder. Each may wait for the user to unlock
// the service, so never call them on the main thread.

/// The password; empty where none is kept.
[[nodiscard]] QString keptPassword(const CloudAccount& account);

/// Keeps a password in place of any other. Empty, or why that failed, for the user.
[[nodiscard]] QString keepPassword(const CloudAccount& account, const QString& password);

} // namespace dropshade
