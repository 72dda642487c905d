// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QSocketNotifier>

#include <array>
#include <memory>

namespace dropshade {

/// Turns the signals by which a session or an administrator ends a program (SIGTERM, SIGINT,
/// SIGHUP) into an orderly quit of the application, so that what waits to be saved is saved. One at
/// a time.
class QuitSignals {
public:
    /// Holds the signals back. They are caught rather than blocked: a mask would pass on to every
    /// program that this one starts, and no signal would end those.
    QuitSignals();
    ~QuitSignals();
    QuitSignals(const QuitSignals&) = delete;
    QuitSignals& operator=(const QuitSignals&) = delete;

    /// Begins to act on them, also on those that came meanwhile. Needs the application.
    void listen();

private:
    /// Of a pipe, to read from and to write to; -1 where there is none.
    std::array<int, 2> m_ends{-1, -1};
    std::unique_ptr<QSocketNotifier> m_notifier;
};

} // namespace dropshade
