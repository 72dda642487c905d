// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/linux/UnsavedValue.h"

#include <utility>

namespace dropshade {

void UnsavedValue::replace(Value value) {
    m_isReplaced = true;
    m_changes.clear();
    m_result = std::move(value);
}

void UnsavedValue::amend(const UserDefaults::Change& change) {
    if (m_isReplaced)
        m_result = change(m_result);
    else
        m_changes.push_back(change);
}

UnsavedValue::Value UnsavedValue::over(const Value& stored) const {
    if (m_isReplaced)
        return m_result;
    if (m_made == 0 || stored != m_stored) {
        m_stored = stored;
        m_result = stored;
        m_made = 0;
    }
    for (; m_made < m_changes.size(); ++m_made)
        m_result = m_changes[m_made](m_result);
    return m_result;
}

} // namespace dropshade
