// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/linux/QuitSignals.h"

#include <QCoreApplication>

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace dropshade {

namespace {

constexpr int quitSignals[] = {SIGTERM, SIGINT, SIGHUP};

/// Where the handler writes; -1 before the first and after the last object.
volatile std::sig_atomic_t pipeEnd = -1;

// On any thread, and between any two instructions of it.
extern "C" void noteQuitSignal(int /*signal*/) {
    const int error = errno;
    // A pipe that is full holds a signal already.
    [[maybe_unused]] const auto written = write(pipeEnd, "", 1);
    errno = error;
}

} // namespace

QuitSignals::QuitSignals() {
    // Without the pipe the signals go on to end the process at once.
    if (pipe2(m_ends.data(), O_NONBLOCK | O_CLOEXEC) != 0)
        return;
    pipeEnd = m_ends[1];
    struct sigaction action = {};
    action.sa_handler = noteQuitSignal;
    action.sa_flags = SA_RESTART;
    for (const int signal : quitSignals)
        sigaction(signal, &action, nullptr);
}

QuitSignals::~QuitSignals() {
    m_notifier.reset();
    pipeEnd = -1;
    for (const int end : m_ends) {
        if (end >= 0)
            close(end);
    }
}

void QuitSignals::listen() {
    const int end = m_ends[0];
    if (end < 0)
        return;
    m_notifier = std::make_unique<QSocketNotifier>(end, QSocketNotifier::Read);
    QObject::connect(m_notifier.get(), &QSocketNotifier::activated, m_notifier.get(), [end] {
        char bytes[16];
        while (read(end, bytes, sizeof bytes) > 0)
            QCoreApplication::quit();
    });
}

} // namespace dropshade
