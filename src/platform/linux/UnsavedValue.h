// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/UserDefaults.h"

#include <cstddef>
#include <vector>

namespace dropshade {

/// What is to become of a setting that the disk has not taken yet: another value in its place, or
/// changes of whatever the disk turns out to have.
class UnsavedValue {
public:
    using Value = std::optional<DefaultsValue>;

    /// Another value, or none, whatever the disk has.
    void replace(Value value);
    void amend(const UserDefaults::Change& change);

    /// Whether what the disk has makes no difference.
    [[nodiscard]] bool isReplaced() const { return m_isReplaced; }
    /// What becomes of `stored`.
    [[nodiscard]] Value over(const Value& stored) const;

private:
    bool m_isReplaced = false;
    std::vector<UserDefaults::Change> m_changes;
    // What the first changes have made of a value, so that none is made anew at each read.
    mutable Value m_stored;
    mutable Value m_result;
    mutable std::size_t m_made = 0;
};

} // namespace dropshade
