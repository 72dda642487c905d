// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QSocketNotifier>

#include <memory>

namespace dropshade {

/// Turns the signals by which a session or an administrator ends a program (SIGTERM, SIGINT,
/// SIGHUP) into an orderly quit of the application, so that what waits to be saved is saved. One at
/// a time.
class QuitSignals {
public:
    /// Holds the signals back. Before the application and its threads, which inherit the mask.
    QuitSignals();
    ~QuitSignals();
    QuitSignals(const QuitSignals&) = delete;
    QuitSignals& operator=(const QuitSignals&) = delete;

    /// Begins to act on them, also on those that came meanwhile. Needs the application.
    void listen();

private:
    int m_descriptor;
    std::unique_ptr<QSocketNotifier> m_notifier;
};

} // namespace dropshade
