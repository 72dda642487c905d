// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/linux/QuitSignals.h"

#include <QCoreApplication>

#include <sys/signalfd.h>

#include <array>
#include <csignal>
#include <unistd.h>

namespace dropshade {

namespace {

constexpr std::array<int, 3> quitSignals{SIGTERM, SIGINT, SIGHUP};

sigset_t quitSet() {
    sigset_t set;
    sigemptyset(&set);
    for (const int signal : quitSignals)
        sigaddset(&set, signal);
    return set;
}

} // namespace

QuitSignals::QuitSignals() {
    const sigset_t set = quitSet();
    sigprocmask(SIG_BLOCK, &set, nullptr);
    m_descriptor = signalfd(-1, &set, SFD_NONBLOCK | SFD_CLOEXEC);
    // Without the descriptor the signals go on to end the process at once.
    if (m_descriptor < 0)
        sigprocmask(SIG_UNBLOCK, &set, nullptr);
}

QuitSignals::~QuitSignals() {
    m_notifier.reset();
    if (m_descriptor >= 0)
        close(m_descriptor);
}

void QuitSignals::listen() {
    if (m_descriptor < 0)
        return;
    m_notifier = std::make_unique<QSocketNotifier>(m_descriptor, QSocketNotifier::Read);
    QObject::connect(m_notifier.get(), &QSocketNotifier::activated, m_notifier.get(), [this] {
        signalfd_siginfo received;
        while (read(m_descriptor, &received, sizeof received) > 0)
            QCoreApplication::quit();
    });
}

} // namespace dropshade
