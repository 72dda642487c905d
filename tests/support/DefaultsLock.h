// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "support/WriterProcess.h"

namespace dropshade {

/// Another process that has the file of a store to itself, for as long as this lives: nobody else
/// can read or write it. `locker` is the program DefaultsLocker.
class DefaultsLock {
public:
    DefaultsLock(const char* locker, const QString& path)
        : m_process(locker, path, QString(), 0), m_isHeld(m_process.collectFirst()) {}

    [[nodiscard]] bool isHeld() const { return m_isHeld; }

private:
    WriterProcess m_process;
    bool m_isHeld;
};

} // namespace dropshade
