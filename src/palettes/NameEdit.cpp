// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "palettes/NameEdit.h"

#include <utility>

namespace dropshade {

NameEdit::NameEdit(const QString& title, const QString& initialName,
                   std::function<void(const QString&)> onCommit)
    : m_title(title), m_name(initialName), m_onCommit(std::move(onCommit)) {}

void NameEdit::dismissed() {
    const auto commit = std::exchange(m_onCommit, nullptr);
    const QString trimmed = m_name.trimmed();
    if (commit && !m_isCancelled && !trimmed.isEmpty())
        commit(trimmed);
}

} // namespace dropshade
