// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

namespace dropshade {

/// Whether the desktop starts the program when the user logs in. The desktop keeps the answer and
/// the user may change it elsewhere, so it is read anew at each call.
class LoginItem {
public:
    virtual ~LoginItem() = default;

    [[nodiscard]] virtual bool isRegistered() const = 0;

    /// These return whether `isRegistered` now says so; a refusal leaves things as they were. To
    /// ask for what already holds is no failure.
    [[nodiscard]] virtual bool registerItem() = 0;
    [[nodiscard]] virtual bool unregisterItem() = 0;
};

} // namespace dropshade
